#include "RobotTab.h"

#include "SimulatedController.h"
#include "UsbDrive.h"
#include "UserSession.h"

#include <QCheckBox>
#include <QFileDialog>
#include <QFormLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QSignalBlocker>
#include <QSpinBox>

namespace {
constexpr int MaxUserLevel = 9;
constexpr int MaxModuleCode = 255;
} // namespace

RobotTab::RobotTab(SimulatedController& simulated, QWidget* parent)
    : PanelTab(simulated, parent)
    , m_power(new QLabel)
{
    auto* form = new QFormLayout(this);

    auto* restart = new QPushButton(tr("Restart now"));
    restart->setObjectName(QStringLiteral("restartButton"));
    connect(restart, &QPushButton::clicked, this, [this] { controller().requestRestart(); });
    auto* power = new QHBoxLayout;
    power->addWidget(m_power, 1);
    power->addWidget(restart);
    form->addRow(tr("Controller"), power);

    addNumber(
        form, QStringLiteral("userLevel"), tr("User level"), MaxUserLevel,
        [] { return UserSession::instance().userLevel(); },
        [](int level) { UserSession::instance().setUserLevel(level); });

    addSwitches(form);
    addNumber(form, QStringLiteral("moduleCode"), tr("Module code"), MaxModuleCode,
              reading(QStringLiteral("ifidbus.anybus_fm")), writing(QStringLiteral("ifidbus.anybus_fm")));
    form->addRow(tr("USB drive"), makeUsbRow());
}

void RobotTab::addSwitches(QFormLayout* form)
{
    // Each variable is looked up by its name on every refresh, so that a change from anywhere shows.
    const struct
    {
        const char* objectName;
        QString caption;
        std::function<bool()> get;
        std::function<void(bool)> set;
    } switches[] = {
        {"robotRunning", tr("Robot running"), [this] { return controller().isRobotRunning(); },
         [this](bool on) { controller().setRobotRunning(on); }},
        {"servoOn", tr("Servo on"), [this] { return controller().isServoOn(); },
         [this](bool on) { controller().setServoOn(on); }},
        {"restartAllowed", tr("Restart allowed"), [this] { return controller().isRestartAllowed(); },
         [this](bool on) { controller().setRestartAllowed(on); }},
        {"profisafe", tr("ProfiSAFE present"), reading(QStringLiteral("io_man.profisafe_status")),
         writing(QStringLiteral("io_man.profisafe_status"))},
        {"freeBus", tr("Free-bus mode"), [this] { return controller().roles().isOn("FreeBus"); },
         [this](bool on) { controller().setRoleOn(QStringLiteral("FreeBus"), on); }},
        {"moduleSlot", tr("Controller with module slot"), reading(QStringLiteral("ifidbus.is_rp2pro")),
         writing(QStringLiteral("ifidbus.is_rp2pro"))},
    };
    for (const auto& row : switches)
        addSwitch(form, QLatin1String(row.objectName), row.caption, row.get, row.set);
}

std::function<double()> RobotTab::reading(const QString& variable) const
{
    return [this, variable] { return controller().variables().value(variable); };
}

std::function<void(double)> RobotTab::writing(const QString& variable) const
{
    return [this, variable](double value) { controller().variables().set(variable, value); };
}

void RobotTab::addSwitch(QFormLayout* form, const QString& objectName, const QString& caption,
                         const std::function<bool()>& get, const std::function<void(bool)>& set)
{
    auto* box = new QCheckBox;
    box->setObjectName(objectName);
    connect(box, &QCheckBox::toggled, this, set);
    form->addRow(caption, box);
    m_switches.push_back({box, get});
}

void RobotTab::addNumber(QFormLayout* form, const QString& objectName, const QString& caption, int maximum,
                         const std::function<int()>& get, const std::function<void(int)>& set)
{
    auto* box = new QSpinBox;
    box->setObjectName(objectName);
    box->setRange(0, maximum);
    box->setKeyboardTracking(false);
    connect(box, QOverload<int>::of(&QSpinBox::valueChanged), this, set);
    form->addRow(caption, box);
    m_numbers.push_back({box, get});
}

QWidget* RobotTab::makeUsbRow()
{
    auto* row = new QWidget;
    auto* layout = new QHBoxLayout(row);
    layout->setContentsMargins(0, 0, 0, 0);
    m_usb = new QLabel;
    m_usbPath = new QLineEdit(UsbDrive::instance().path());
    m_usbPath->setObjectName(QStringLiteral("usbPath"));
    m_usbPath->setPlaceholderText(tr("Folder that stands for the drive"));
    auto* browse = new QPushButton(tr("Folder ..."));
    auto* insert = new QPushButton(tr("Insert"));
    insert->setObjectName(QStringLiteral("usbInsert"));
    auto* pullOut = new QPushButton(tr("Pull out"));
    pullOut->setObjectName(QStringLiteral("usbPullOut"));
    layout->addWidget(m_usb);
    layout->addWidget(m_usbPath, 1);
    for (QPushButton* button : {browse, insert, pullOut})
        layout->addWidget(button);

    connect(browse, &QPushButton::clicked, this, [this] {
        const QString folder = QFileDialog::getExistingDirectory(this, tr("USB drive"), m_usbPath->text());
        if (!folder.isEmpty())
            m_usbPath->setText(folder);
    });
    connect(insert, &QPushButton::clicked, this, [this] {
        if (!m_usbPath->text().isEmpty())
            UsbDrive::instance().insert(m_usbPath->text());
    });
    connect(pullOut, &QPushButton::clicked, this, [] { UsbDrive::instance().pullOut(); });
    return row;
}

void RobotTab::refresh()
{
    m_power->setText(controller().isUp() ? tr("Up") : tr("Restarting"));
    m_usb->setText(UsbDrive::instance().isInserted() ? tr("Inserted") : tr("Out"));
    for (const auto& row : m_switches) {
        const QSignalBlocker blocker(row.widget);
        row.widget->setChecked(row.get());
    }
    for (const auto& row : m_numbers) {
        // Not under the fingers of somebody who types.
        if (row.widget->hasFocus())
            continue;
        const QSignalBlocker blocker(row.widget);
        row.widget->setValue(row.get());
    }
}
