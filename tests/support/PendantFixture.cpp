#include "PendantFixture.h"

#include "ApplicationInfo.h"
#include "ApplicationSlot.h"
#include "BusFileDataManager.h"
#include "BusFileService.h"
#include "CurrentLink.h"
#include "FieldbusSettingLib.h"
#include "Finger.h"
#include "TimeScale.h"
#include "UsbDrive.h"
#include "UserSession.h"
#include "ZelBaseWidget.h"

#include <QAbstractButton>
#include <QComboBox>
#include <QDir>
#include <QTableWidget>

namespace {

constexpr int CalmTurns = 6;
constexpr int TurnMs = 5;
constexpr int ModuleCheckMs = 80; // after which the start page has looked what module there is
constexpr int NormalUserLevel = 4;

QWidget* menuPage(const PendantWindow& window)
{
    return window.findChild<QWidget*>(QStringLiteral("FbMainWidget"));
}

bool isBusy(const PendantWindow& window)
{
    const QWidget* menu = menuPage(window);
    return QApplication::activeModalWidget() ||
           (menu && menu->testAttribute(Qt::WA_TransparentForMouseEvents));
}

} // namespace

void PendantFixture::start(double timeScale)
{
    m_previousDirectory = QDir::currentPath();
    m_directory = std::make_unique<QTemporaryDir>();
    MsgBoxScript::clear();
    NumericKeyboardScript::clear();
    MsgBoxScript::failUnanswered(true);
    NumericKeyboardScript::failUnanswered(true);
    FieldbusSettingLib::destroy();
    UserSession::instance().setUserLevel(NormalUserLevel);
    UsbDrive::instance().pullOut();

    WorkDirectory work(m_directory->path());
    if (!work.enter())
        qFatal("no scratch directory: %s", qPrintable(work.error()));
    QDir().mkpath(usbDirectory());
    setTimeScale(timeScale);
    m_controller = std::make_unique<SimulatedController>(work.controllerStore());
    m_controller->setTimeScale(timeScale);
    setCurrentLink(m_controller.get());
    BusFileService::instance().resetSession();
    InstalledApplications installed;
    for (const QString& description : descriptions)
        installed.addFile(QStringLiteral(APPLICATIONS) + description);
    m_window = std::make_unique<PendantWindow>(installed);
    m_window->show();
}

void PendantFixture::stop()
{
    if (!m_directory)
        return;
    m_window.reset();
    setCurrentLink(nullptr);
    m_controller.reset();
    QDir::setCurrent(m_previousDirectory);
    m_directory.reset();
    const QStringList unanswered = MsgBoxScript::unanswered() + NumericKeyboardScript::unanswered();
    if (!unanswered.isEmpty())
        QTest::qFail(qPrintable("not answered: " + unanswered.join(QStringLiteral(" | "))), __FILE__,
                     __LINE__);
}

ApplicationSlot* PendantFixture::application() const
{
    ApplicationSlot* const shown = m_window->present();
    return shown ? shown : m_window->applications().front();
}

bool PendantFixture::open()
{
    m_window->openApplication(application()->info().className);
    const auto isFirstPageShown = [this] {
        const QWidget* first = find(QStringLiteral("BusSettingWidget"));
        return isOpen() && first && first->isVisible();
    };
    return QTest::qWaitFor(isFirstPageShown, 10000) && settle();
}

bool PendantFixture::openPastStartPage()
{
    MsgBoxScript::answerByDefault(MsgBox::Confirmed);
    bool opened = open();
    QTest::qWait(ModuleCheckMs);
    opened = settle() && opened;
    MsgBoxScript::clear();
    MsgBoxScript::failUnanswered(true);
    m_controller->traffic().clear();
    return opened;
}

bool PendantFixture::isOpen() const
{
    return menuPage(*m_window) && application()->state() == ApplicationSlot::State::Shown;
}

bool PendantFixture::openPage(const QString& menuButton)
{
    return press(menuButton) && settle();
}

bool PendantFixture::selectPage(int id)
{
    QWidget* menu = menuPage(*m_window);
    return menu && QMetaObject::invokeMethod(menu, "slotMenuBtnsClicked", Q_ARG(int, id)) && settle();
}

bool PendantFixture::settle(int msec)
{
    QElapsedTimer total;
    total.start();
    QElapsedTimer calm;
    calm.start();
    // Turns as well: on a busy machine a turn takes longer.
    for (int turns = 0; turns < CalmTurns || calm.elapsed() < calmMs; ++turns) {
        if (total.elapsed() > msec)
            return false;
        QTest::qWait(TurnMs);
        if (isBusy(*m_window)) {
            turns = -1;
            calm.restart();
        }
    }
    return true;
}

bool PendantFixture::press(const QString& name)
{
    QWidget* target = find(name);
    return target && Finger::press(target);
}

bool PendantFixture::save(const QString& button, std::initializer_list<int> answers)
{
    traffic().clear();
    answer(answers);
    return press(button) && settle();
}

bool PendantFixture::pressCell(const QString& table, int row, int column)
{
    auto* widget = find<QTableWidget>(table);
    if (!widget || !widget->isVisible())
        return false;
    widget->scrollTo(widget->model()->index(row, column));
    const QRect cell = widget->visualRect(widget->model()->index(row, column));
    if (!cell.isValid())
        return false;
    QTest::mouseClick(widget->viewport(), Qt::LeftButton, Qt::NoModifier, cell.center());
    return true;
}

bool PendantFixture::enter(const QString& edit, const QString& text)
{
    NumericKeyboardScript::enterNext(text);
    return press(edit);
}

bool PendantFixture::pressOn(const QString& page, const QString& name)
{
    return Finger::press(findOn(page, name)) && settle();
}

QString PendantFixture::text(const QString& name) const
{
    const QWidget* widget = find(name);
    if (!widget)
        return QStringLiteral("(there is no %1)").arg(name);
    const QVariant entry = widget->property("currentText");
    return (entry.isValid() ? entry : widget->property("text")).toString();
}

int PendantFixture::chosen(const QString& name) const
{
    const auto* list = find<QComboBox>(name);
    return list ? list->currentIndex() : -2;
}

void PendantFixture::choose(const QString& name, int index)
{
    find<QComboBox>(name)->setCurrentIndex(index);
}

bool PendantFixture::isChecked(const QString& name) const
{
    const auto* button = find<QAbstractButton>(name);
    return button && button->isChecked();
}

void PendantFixture::dropUserLevel()
{
    UserSession::instance().setUserLevel(1);
}

bool PendantFixture::reopensAfterDrop(int mostRestarts)
{
    if (!QTest::qWaitFor([this] { return !menuPage(*m_window); }, 10000))
        return false;
    QTest::qWait(100); // what it left behind would show itself
    if (QApplication::activeModalWidget() || !MsgBoxScript::unanswered().isEmpty() ||
        m_controller->traffic().restartRequests() > mostRestarts)
        return false;
    for (const QWidget* widget : QApplication::topLevelWidgets()) {
        if (widget->isVisible() && qobject_cast<const MsgBox*>(widget))
            return false;
    }
    MsgBoxScript::onShown({});
    NumericKeyboardScript::onShown({});
    MsgBoxScript::answerByDefault(std::nullopt);
    m_controller->faults().clearAll();
    UserSession::instance().setUserLevel(NormalUserLevel);
    return QTest::qWaitFor([this] { return m_controller->isUp(); }) && openPastStartPage();
}

bool PendantFixture::tick(int times)
{
    QObject* widget = application()->widget();
    if (!widget)
        return false;
    const QMetaObject* type = widget->metaObject();
    const QMetaMethod idle = type->method(type->indexOfSlot("slotIdle()"));
    bool ticked = true;
    for (int i = 0; i < times; ++i)
        ticked = idle.invoke(widget) && ticked;
    return ticked;
}

bool PendantFixture::put(const QString& path, const QByteArray& content)
{
    return m_controller->files().write(path, content);
}

QByteArray PendantFixture::controllerFile(const QString& path) const
{
    QByteArray content;
    m_controller->files().read(path, content);
    return content;
}

double PendantFixture::variable(const QString& name, int element) const
{
    return m_controller->variables().value(name, element);
}

QVector<double> PendantFixture::writesOf(const QString& name)
{
    QVector<double> values;
    for (const Traffic::Write& write : m_controller->traffic().writes()) {
        if (write.name == name)
            values << write.value;
    }
    return values;
}

QStringList PendantFixture::messages()
{
    QStringList texts;
    for (const ShownMsgBox& box : MsgBoxScript::shown())
        texts << box.text;
    return texts;
}

void PendantFixture::answer(std::initializer_list<int> results)
{
    for (const int result : results)
        MsgBoxScript::answerNext(result);
}
