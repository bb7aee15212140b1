#include "Tour.h"

#include "ApplicationSlot.h"
#include "BusFileDataManager.h"
#include "ControllerLink.h"
#include "Finger.h"
#include "MsgBox.h"
#include "MsgBoxScript.h"
#include "NumericKeyboardScript.h"
#include "PendantWindow.h"
#include "ZelBaseWidget.h"

#include <QAbstractButton>
#include <QApplication>
#include <QComboBox>
#include <QDialog>
#include <QElapsedTimer>
#include <QEventLoop>
#include <QLineEdit>
#include <QPainter>
#include <QStackedWidget>
#include <QTabWidget>
#include <QTextStream>

#include <algorithm>
#include <utility>

namespace {
constexpr int LoadedAfterQuietMs = 300;
constexpr int LoadingLimitMs = 15000;
constexpr int LookEveryMs = 20;

QTextStream& out()
{
    static QTextStream stream(stdout);
    return stream;
}

void wait(int ms)
{
    QEventLoop loop;
    QTimer::singleShot(ms, &loop, &QEventLoop::quit);
    loop.exec();
}

bool isDialogOf(const QWidget* widget, const QWidget& window)
{
    return widget->isWindow() && widget->isVisible() && widget->windowType() != Qt::ToolTip &&
           widget != &window && (!widget->parentWidget() || widget->parentWidget()->window() == &window);
}

// The pendant with all that lies over it: dialogs are windows of their own and not in the window's picture.
QPixmap picturePendant(QWidget& window, const QWidget* panel)
{
    QPixmap picture = window.grab();
    QPainter painter(&picture);
    const QWidgetList widgets = QApplication::topLevelWidgets();
    for (QWidget* widget : widgets) {
        if (widget != panel && isDialogOf(widget, window))
            painter.drawPixmap(widget->pos() - window.pos(), widget->grab());
    }
    return picture;
}

QString joined(const QStringList& texts)
{
    return texts.isEmpty() ? QStringLiteral("-") : texts.join(QStringLiteral(" | "));
}
} // namespace

const Tour::Station Tour::Stations[] = {
    {"home", &Tour::visitHome},
    {"menu", &Tour::visitMenu},
    {"pages", &Tour::visitPages},
    {"heartbeat-lights", &Tour::visitHeartbeatLights},
    {"message", &Tour::visitMessage},
    {"numeric-keyboard", &Tour::visitNumericKeyboard},
    {"log-in", &Tour::visitLogIn},
    {"panel", &Tour::visitPanel},
    {"mes", &Tour::visitMes},
    {"fins", &Tour::visitFins},
    {"modbus-master", &Tour::visitModbusMaster},
    {"mapping", &Tour::visitMapping},
    {"devicenet-slave", &Tour::visitDeviceNetSlave},
    {"devicenet-master-editing", &Tour::visitDeviceNetMasterEditing},
    {"usb", &Tour::visitUsb},
    {"bus-switches", &Tour::visitBusSwitches},
    {"exit", &Tour::visitExit},
    {"slave-states", &Tour::visitSlaveStates},
    {"masters", &Tour::visitMasters},
    {"slave-module", &Tour::visitSlaveModule},
};

Tour::Tour(Subject subject, const QString& directory)
    : m_subject(std::move(subject))
    , m_directory(directory)
{
    m_answering.setInterval(LookEveryMs);
    connect(&m_answering, &QTimer::timeout, this, &Tour::answerDialog);
}

int Tour::run()
{
    if (!QDir().mkpath(m_directory.absolutePath())) {
        fail(tr("the folder %1 cannot be made").arg(m_directory.absolutePath()));
        return 2;
    }
    m_answering.start();
    int failures = 0;
    for (const Station& station : Stations) {
        if (!(this->*station.visit)()) {
            ++failures;
            fail(tr("station \"%1\" was not reached").arg(QLatin1String(station.name)));
        }
    }
    m_answering.stop();
    out() << tr("%n picture(s) in %1", nullptr, m_pictures)
                 .arg(QDir::toNativeSeparators(m_directory.absolutePath()))
          << '\n';
    out().flush();
    return failures == 0 ? 0 : 1;
}

bool Tour::visitHome()
{
    return settle() && report(QStringLiteral("home"));
}

bool Tour::visitMenu()
{
    const QString problem = m_subject.window.application().error();
    if (!problem.isEmpty())
        return fail(problem);
    if (!pressAndSettle(find(QStringLiteral("applicationTile"))))
        return false;
    QWidget* menu = find(QStringLiteral("menusGroupBox"));
    return menu && menu->isVisible() && report(QStringLiteral("menu"));
}

bool Tour::visitPages()
{
    const QWidget* menu = find(QStringLiteral("menusGroupBox"));
    if (!menu)
        return false;
    // By name: a page may change which buttons there are.
    QStringList names;
    const auto buttons = menu->findChildren<QAbstractButton*>();
    for (const QAbstractButton* button : buttons) {
        if (button->isVisible() && button->objectName() != QLatin1String("exitBtn"))
            names.append(button->objectName());
    }
    bool allLoaded = !names.isEmpty();
    for (const QString& name : qAsConst(names)) {
        const bool loaded = openPage(name) && !m_errorShown;
        if (!loaded)
            fail(tr("the page of %1 did not load").arg(name));
        allLoaded = report(pageClass()) && loaded && allLoaded;
    }
    return allLoaded;
}

bool Tour::visitHeartbeatLights()
{
    if (!openPage(QStringLiteral("heartbeatBtn")))
        return false;
    // Every second link is up. A role that is switched off keeps its grey ring.
    constexpr const char* Links[] = {"mtcp", "ethcat", "pfn", "eip", "ecm",
                                     "dns",  "mbc",    "eim", "pnm", "dnm"};
    bool up = true;
    for (const char* link : Links) {
        m_subject.controller.writeVariable(QStringLiteral("ifidbus.%1_link_state").arg(QLatin1String(link)),
                                           0, up ? 1.0 : 0.0);
        up = !up;
    }
    return settle() && report(QStringLiteral("heartbeat-lights"));
}

bool Tour::visitMessage()
{
    return openPage(QStringLiteral("heartbeatBtn")) &&
           pictureOfDialog(QStringLiteral("message"), QStringLiteral("saveButton"));
}

bool Tour::visitNumericKeyboard()
{
    return openPage(QStringLiteral("heartbeatBtn")) &&
           pictureOfDialog(QStringLiteral("numeric-keyboard"), QStringLiteral("modbusLineEdit"));
}

bool Tour::visitLogIn()
{
    return pictureOfDialog(QStringLiteral("log-in"), QStringLiteral("logInButton"));
}

bool Tour::visitPanel()
{
    if (!m_subject.panel)
        return true;
    const bool wasVisible = m_subject.panel->isVisible();
    m_subject.panel->show();
    const bool reported = settle() && report(QStringLiteral("panel"), m_subject.panel);
    m_subject.panel->setVisible(wasVisible);
    return reported;
}

bool Tour::visitBusSwitches()
{
    if (!openPage(QStringLiteral("busSetting")))
        return false;
    // Of the two DeviceNet roles one is refused while the other is on.
    auto* master = qobject_cast<QComboBox*>(find(QStringLiteral("devnetmSwitch")));
    auto* slave = qobject_cast<QComboBox*>(find(QStringLiteral("devnetSwitch")));
    if (!master || !slave)
        return false;
    slave->setCurrentIndex(0);
    master->setCurrentIndex(1);
    const bool warned = pictureOfDialog(QStringLiteral("bus-switch-warning"), [slave] {
        slave->setCurrentIndex(1);
        return true;
    });
    // Cancelled, which takes the switches back; then confirmed, which changes nothing and shows the wait.
    if (!warned || !pictureOfDialog(QStringLiteral("bus-switch-question"), QStringLiteral("saveBusBt")))
        return false;
    MsgBoxScript::answerNext(MsgBox::Confirmed);
    return Finger::press(find(QStringLiteral("saveBusBt"))) && report(QStringLiteral("bus-switch-wait")) &&
           settle() && report(QStringLiteral("bus-switch-saved"));
}

bool Tour::visitDeviceNetSlave()
{
    constexpr int Linked = 32;
    const QString name = QStringLiteral("ifidbus.commun_state");
    const double before = m_subject.controller.readVariable(name, 0);
    m_subject.controller.writeVariable(name, 0, static_cast<int>(before) | Linked);
    const bool shown =
        openHiddenPage(QStringLiteral("deviceBtn")) && report(QStringLiteral("devicenet-slave"));
    m_subject.controller.writeVariable(name, 0, before);
    return shown;
}

bool Tour::visitDeviceNetMasterEditing()
{
    const QString path = QStringLiteral("/fa/dnmst0.cfg");
    constexpr int Devices = 16;
    QByteArray before;
    if (!m_subject.controller.fetchFile(path, before))
        return fail(tr("%1 cannot be fetched").arg(path));
    const auto store = [this, &path](const QByteArray& file, int devices) {
        m_subject.controller.writeVariable(QStringLiteral("ifidbus.dnm_save_config"), 0, 1.0);
        m_subject.controller.writeVariable(QStringLiteral("ifidbus.dnm_slave_num"), 0, devices);
        return m_subject.controller.storeFile(path, file);
    };
    QByteArray full = before.left(before.indexOf(";=====")); // the header, and a long list below it
    for (int device = 1; device <= Devices; ++device) {
        full += QStringLiteral(";===================\n;   Device %1 MAC ID %2\nBLOCK_TO_RBX 0 0 %1\n"
                               "BLOCK_FROM_RBX 0 0 4\nVENDOR_ID %3\nPROD_CODE %4\nREVISION 257\n")
                    .arg(device)
                    .arg(4 * device + 1)
                    .arg(-4096 * device + 1)
                    .arg(100 + device)
                    .toLatin1();
    }
    m_subject.controller.writeVariable(QStringLiteral("ifidbus.dnm_link_state"), 0, 1.0);
    // The page fetches when it is built, so the application is opened anew.
    const bool shown = store(full, Devices) && reopen() && openPage(QStringLiteral("devicemBtn")) &&
                       pressAndSettle(find(QStringLiteral("btn_edit"))) &&
                       report(QStringLiteral("devicenet-master-editing"));
    return store(before, before.count(";   Device ")) && reopen() && shown;
}

bool Tour::visitMes()
{
    if (!openPage(QStringLiteral("mesBtn")) || !pressAndSettle(find(QStringLiteral("monitorButton"))))
        return false;
    // Whether the port is free is the machine's business; the picture is the same.
    m_subject.controller.writeVariable(QStringLiteral("imes.tcp_server_active"), 0, 1.0);
    bool seen = settle() && report(QStringLiteral("mes-active"));
    m_subject.controller.writeVariable(QStringLiteral("imes.tcp_server_connected"), 0, 1.0);
    seen = settle() && report(QStringLiteral("mes-connected")) && seen;
    return pressAndSettle(find(QStringLiteral("monitorButton"))) && seen;
}

bool Tour::visitFins()
{
    constexpr int FinsPage = 2; // without a menu button
    const auto set = [this](const char* variable, bool on) {
        m_subject.controller.writeVariable(QStringLiteral("ifins_tcp.%1").arg(QLatin1String(variable)), 0,
                                           on ? 1.0 : 0.0);
    };
    QWidget* menu = find(QStringLiteral("FbMainWidget"));
    if (!menu || !QMetaObject::invokeMethod(menu, "slotMenuBtnsClicked", Q_ARG(int, FinsPage)) || !settle() ||
        !report(QStringLiteral("fins-off")))
        return false;
    // The factory settings name a server that a simulated controller does not call.
    bool seen =
        pressAndSettle(find(QStringLiteral("enable_checkBox"))) && report(QStringLiteral("fins-error"));
    set("error", false);
    set("connected", true);
    seen = settle() && report(QStringLiteral("fins-on")) && seen;
    set("enable", false);
    return settle() && seen;
}

// With the controller's own slave as the partner. The settings are put back: what is walked through is not
// changed.
bool Tour::visitModbusMaster()
{
    const QString file = QStringLiteral("/application/fidbus/mtcpMaster/mtcp_master.xml");
    const QString announced = QStringLiteral("ifidbus.mbc_save_enable");
    const QString connected = QStringLiteral("ifidbus.mbc_connected");
    QByteArray settings;
    if (!openPage(QStringLiteral("mtcpMasterBtn")) || !m_subject.controller.fetchFile(file, settings))
        return false;
    bool reached = type(QStringLiteral("le_masterIp"), QStringLiteral("127.0.0.1")) &&
                   type(QStringLiteral("le_masterId"), QStringLiteral("1")) &&
                   type(QStringLiteral("le_masterPort"), QString::number(m_subject.modbusPort));
    MsgBoxScript::answerNext(MsgBox::Confirmed);
    reached = reached && pressAndSettle(find(QStringLiteral("btn_save"))) &&
              waitForVariable(announced, 0.0) && pressAndSettle(find(QStringLiteral("btn_connect"))) &&
              waitForVariable(connected, 1.0) && settle() &&
              report(QStringLiteral("modbus-master-connected"));
    reached = m_subject.controller.storeFile(file, settings) && reached;
    m_subject.controller.writeVariable(announced, 0, 1.0);
    return reached;
}

// Every bus in either mode, as if the roles had been switched on another page meanwhile.
bool Tour::visitMapping()
{
    BusFileDataManager* service = BusFileDataManager::getInstance();
    const QMap<QString, BusName> before = service->getAllBusName();
    bool reached = true;
    for (const bool isFree : {true, false}) {
        QMap<QString, BusName> roles = before;
        for (BusName& role : roles)
            role.enabled = role.name != QLatin1String("FreeBus") || isFree;
        service->setBusInfo(roles);
        const QString mode = isFree ? QStringLiteral("free") : QStringLiteral("fixed");
        reached = openPage(QStringLiteral("heartbeatBtn")) && openPage(QStringLiteral("configBtn")) &&
                  reportMappingTabs(mode) && pressAndSettle(find(QStringLiteral("bt_EditOrSave"))) &&
                  report(QStringLiteral("mapping-%1-editing").arg(mode)) && reached;
    }
    service->setBusInfo(before);
    return reached && openPage(QStringLiteral("heartbeatBtn"));
}

bool Tour::reportMappingTabs(const QString& mode)
{
    auto* tabs = qobject_cast<QTabWidget*>(find(QStringLiteral("tabWidget_Bus")));
    if (!tabs)
        return false;
    for (int tab = 0; tab < tabs->count(); ++tab) {
        if (!tabs->isTabEnabled(tab))
            continue;
        tabs->setCurrentIndex(tab);
        wait(LookEveryMs);
        report(QStringLiteral("mapping-%1-%2").arg(mode, tabs->currentWidget()->objectName()));
    }
    tabs->setCurrentIndex(0);
    return pressAndSettle(find(QStringLiteral("checkBox_Mtcp_RW"))) &&
           report(QStringLiteral("mapping-%1-read-and-write").arg(mode)) &&
           pressAndSettle(find(QStringLiteral("checkBox_Mtcp_RO")));
}

bool Tour::visitExit()
{
    // Opened again from the home screen, so that a second life of the application is seen as well.
    return reopen() && leave() && report(QStringLiteral("home-again"));
}

bool Tour::leave()
{
    return pressAndSettle(find(QStringLiteral("exitBtn"))) && !find(QStringLiteral("menusGroupBox"));
}

bool Tour::reopen()
{
    return leave() && pressAndSettle(find(QStringLiteral("applicationTile")));
}

// What the slaves' pages show beside their settings: no port with the EtherNet/IP slave's address, and a
// ProfiSAFE device. The pages are new ones, as the application is opened again for them.
bool Tour::visitSlaveStates()
{
    const QString portsPath = QStringLiteral("/application/network/netports.xml");
    const QString profisafe = QStringLiteral("io_man.profisafe_status");
    ControllerLink& controller = m_subject.controller;
    QByteArray ports;
    if (!controller.fetchFile(portsPath, ports) ||
        !controller.storeFile(portsPath, QByteArray(ports).replace(".22", ".23")))
        return false;
    controller.writeVariable(profisafe, 0, 1.0);

    bool reached = pressAndSettle(find(QStringLiteral("applicationTile")));
    const struct
    {
        const char* button;
        const char* picture;
    } stops[] = {{"etherNetBtn", "ethernet-ip-banner"},
                 {"pfbPfnBtn", "profinet-with-profisafe"},
                 {"btn_pfss", "profisafe"}};
    for (const auto& stop : stops)
        reached = reached && openPage(QLatin1String(stop.button)) && report(QLatin1String(stop.picture));
    reached = reached && pressAndSettle(find(QStringLiteral("btn_errorConfir"))) &&
              report(QStringLiteral("profisafe-command"));

    controller.writeVariable(profisafe, 0, 0.0);
    return controller.storeFile(portsPath, ports) && pressAndSettle(find(QStringLiteral("exitBtn"))) &&
           reached;
}

bool Tour::visitMasters()
{
    if (!pressAndSettle(find(QStringLiteral("applicationTile"))))
        return false;
    for (const char* button : {"etherCatMBtn", "pnmBtn", "eipMasterBtn"}) {
        if (!openHiddenPage(QLatin1String(button)) || !report(pageClass()))
            return false;
    }
    // Every state of the lights, with all slaves and with none.
    constexpr int Positions = 9;
    for (int position = 0; position < Positions; ++position) {
        m_subject.controller.writeVariable(QStringLiteral("ifidbus.eim_status"), position, position % 2);
        m_subject.controller.writeVariable(QStringLiteral("ifidbus.eim_enable_status"), position,
                                           position % 3);
        m_subject.controller.writeVariable(QStringLiteral("ifidbus.eim_disable_status"), position,
                                           (position + 1) % 3);
    }
    auto* count = qobject_cast<QLineEdit*>(find(QStringLiteral("lineEdit_slave_count")));
    if (!count)
        return false;
    for (const int slaves : {Positions, 0}) {
        count->setText(QString::number(slaves));
        if (!settle() || !report(QStringLiteral("eip-master-%1-slaves").arg(slaves)))
            return false;
    }
    return pressAndSettle(find(QStringLiteral("btn_reset")));
}

// The page of the EtherCAT slave decides for a face when it is built.
bool Tour::visitSlaveModule()
{
    const QString module = QStringLiteral("ifidbus.anybus_fm");
    constexpr int EtherCatModule = 13;
    const double before = m_subject.controller.readVariable(module, 0);
    m_subject.controller.writeVariable(module, 0, EtherCatModule);
    const bool reported = pressAndSettle(find(QStringLiteral("exitBtn"))) &&
                          pressAndSettle(find(QStringLiteral("applicationTile"))) &&
                          openHiddenPage(QStringLiteral("etherCatBtn")) &&
                          report(QStringLiteral("ethercat-slave-module"));
    m_subject.controller.writeVariable(module, 0, before);
    return reported && pressAndSettle(find(QStringLiteral("exitBtn")));
}

bool Tour::openPage(const QString& button)
{
    return pressAndSettle(find(button)) && !pageClass().isEmpty();
}

// The page of a role that is switched off has no button to be seen.
bool Tour::openHiddenPage(const QString& button)
{
    auto* hidden = m_subject.window.findChild<QAbstractButton*>(button);
    if (!hidden)
        return false;
    hidden->click();
    return settle() && !pageClass().isEmpty();
}

bool Tour::pictureOfDialog(const QString& name, const QString& button)
{
    return pictureOfDialog(name, [this, button] { return Finger::press(find(button)); });
}

bool Tour::pictureOfDialog(const QString& name, const std::function<bool()>& act)
{
    m_wantedDialog = name;
    m_dialogTaken = false;
    m_dialogSeen = false;
    const bool settled = act() && settle();
    m_wantedDialog.clear();
    return settled && m_dialogTaken;
}

bool Tour::pressAndSettle(QWidget* target)
{
    return Finger::press(target) && settle();
}

bool Tour::type(const QString& edit, const QString& text)
{
    NumericKeyboardScript::enterNext(text);
    return pressAndSettle(find(edit));
}

bool Tour::waitForVariable(const QString& name, double value)
{
    QElapsedTimer limit;
    limit.start();
    while (m_subject.controller.readVariable(name) != value && limit.elapsed() < LoadingLimitMs)
        wait(LookEveryMs);
    return m_subject.controller.readVariable(name) == value;
}

// A page is loaded when it lets the finger through, asks nothing, and nothing was fetched for a while.
bool Tour::settle()
{
    QElapsedTimer limit;
    QElapsedTimer quiet;
    limit.start();
    quiet.start();
    while (limit.elapsed() < LoadingLimitMs) {
        wait(LookEveryMs);
        const QStringList fetches = m_subject.takeFetches();
        m_fetches += fetches;
        if (!fetches.isEmpty() || isBusy())
            quiet.restart();
        if (quiet.elapsed() >= LoadedAfterQuietMs)
            return true;
    }
    return false;
}

bool Tour::isBusy() const
{
    const QWidgetList widgets = QApplication::topLevelWidgets();
    if (std::any_of(widgets.begin(), widgets.end(), [this](const QWidget* widget) {
            return widget != m_subject.panel && isDialogOf(widget, m_subject.window);
        }))
        return true;
    switch (m_subject.window.application().state()) {
    case ApplicationSlot::State::Empty:
        return false;
    case ApplicationSlot::State::Leaving:
        return true;
    case ApplicationSlot::State::Shown:
        break;
    }
    const QWidget* menu = find(QStringLiteral("menusGroupBox"));
    if (!menu || !menu->isVisible())
        return true;
    for (const QWidget* above = menu; above; above = above->parentWidget()) {
        if (above->testAttribute(Qt::WA_TransparentForMouseEvents))
            return true;
    }
    return false;
}

// What is visible is meant: a page that is not shown may have a button of the same name.
QWidget* Tour::find(const QString& name) const
{
    const auto found = m_subject.window.findChildren<QWidget*>(name);
    const auto visible =
        std::find_if(found.begin(), found.end(), [](const QWidget* widget) { return widget->isVisible(); });
    return visible == found.end() ? nullptr : *visible;
}

QString Tour::pageClass() const
{
    const auto* pages = m_subject.window.findChild<QStackedWidget*>(QStringLiteral("fieldbusSetSWidget"));
    const QWidget* page = pages ? pages->currentWidget() : nullptr;
    return page && page->isVisible() ? QString::fromLatin1(page->metaObject()->className()) : QString();
}

// Dismisses whatever asks something, so that nothing is changed, and keeps what it said.
void Tour::answerDialog()
{
    auto* dialog = qobject_cast<QDialog*>(QApplication::activeModalWidget());
    if (!dialog || (m_answer && m_answer(*dialog)))
        return;
    if (!m_wantedDialog.isEmpty() && !m_dialogTaken) {
        // A round later it is laid out and painted.
        if (!std::exchange(m_dialogSeen, true))
            return;
        if (const auto* box = qobject_cast<MsgBox*>(dialog))
            m_messages.append(box->text());
        m_dialogTaken = report(m_wantedDialog);
    } else if (const auto* box = qobject_cast<MsgBox*>(dialog)) {
        m_messages.append(box->text());
        m_errorShown = m_errorShown || box->kind() == MsgBox::Error;
    }
    dialog->reject();
}

bool Tour::report(const QString& name, QWidget* shown)
{
    m_fetches += m_subject.takeFetches();
    const QString file = QStringLiteral("%1-%2.png")
                             .arg(++m_pictures, 2, 10, QLatin1Char('0'))
                             .arg(name.isEmpty() ? QStringLiteral("nothing") : name);
    const QPixmap picture = shown ? shown->grab() : picturePendant(m_subject.window, m_subject.panel);
    const bool saved = picture.save(m_directory.filePath(file));
    out() << tr("%1  files fetched: %2  messages: %3  picture: %4")
                 .arg(name, -28)
                 .arg(joined(m_fetches), joined(m_messages), saved ? file : tr("not saved"))
          << '\n';
    out().flush();
    m_fetches.clear();
    m_messages.clear();
    m_errorShown = false;
    return saved;
}

bool Tour::fail(const QString& what)
{
    QTextStream(stderr) << tr("tour: %1").arg(what) << '\n';
    return false;
}
