#include "StatusBar.h"

#include "ControllerLink.h"
#include "CurrentLink.h"
#include "Languages.h"
#include "StatusItem.h"
#include "UsbDrive.h"
#include "UserSession.h"

#include <QHBoxLayout>
#include <QPushButton>

namespace {
constexpr int LogInWidth = 170; // pixels
constexpr int LanguageWidth = 112;

using Reading = StatusItem::Reading;

constexpr Reading Running = {nullptr, "\u25B6", QT_TRANSLATE_NOOP("StatusItem", "running"), "good"};
constexpr Reading Stopped = {nullptr, "\u25A0", QT_TRANSLATE_NOOP("StatusItem", "stopped"), "calm"};
constexpr Reading ServoOn = {"servo", "\u25CF", QT_TRANSLATE_NOOP("StatusItem", "on"), "good"};
constexpr Reading ServoOff = {"servo", "\u25CB", QT_TRANSLATE_NOOP("StatusItem", "off"), "calm"};
constexpr Reading Up = {"controller_up", "\u2714", QT_TRANSLATE_NOOP("StatusItem", "up"), "good"};
constexpr Reading Restarting = {"controller_restarting", "\u25B2",
                                QT_TRANSLATE_NOOP("StatusItem", "restarting"), "warn"};
constexpr Reading NotConnected = {"controller_restarting", "\u2716",
                                  QT_TRANSLATE_NOOP("StatusItem", "not connected"), "bad"};
constexpr Reading DriveIn = {"usb", "\u25A3", QT_TRANSLATE_NOOP("StatusItem", "drive in"), "calm"};
constexpr Reading DriveOut = {"usb", "\u25A1", QT_TRANSLATE_NOOP("StatusItem", "no drive"), "calm"};
} // namespace

StatusBar::StatusBar(QWidget* parent)
    : QFrame(parent)
    , m_logIn(new QPushButton(this))
    , m_language(new QPushButton(this))
    , m_program(new StatusItem(QT_TRANSLATE_NOOP("StatusItem", "Program")))
    , m_servo(new StatusItem(QT_TRANSLATE_NOOP("StatusItem", "Servo")))
    , m_controller(new StatusItem(QT_TRANSLATE_NOOP("StatusItem", "Controller")))
    , m_usb(new StatusItem(QT_TRANSLATE_NOOP("StatusItem", "USB")))
{
    setObjectName(QStringLiteral("statusBar"));
    setFixedHeight(Height);

    const struct
    {
        QPushButton* button;
        const char* name;
        const char* icon;
        int width;
    } buttons[] = {{m_logIn, "logInButton", ":/host/user.png", LogInWidth},
                   {m_language, "languageButton", ":/host/language.png", LanguageWidth}};
    for (const auto& row : buttons) {
        row.button->setObjectName(QLatin1String(row.name));
        row.button->setIcon(QIcon(QLatin1String(row.icon)));
        row.button->setIconSize(QSize(36, 36));
        row.button->setMinimumSize(row.width, 64);
        row.button->setFocusPolicy(Qt::NoFocus);
    }

    auto* layout = new QHBoxLayout(this);
    layout->setContentsMargins(16, 8, 16, 8);
    layout->setSpacing(12);
    layout->addWidget(m_logIn);
    const struct
    {
        StatusItem* item;
        const char* name;
        int stretch;
    } items[] = {{m_program, "statusProgram", 4},
                 {m_servo, "statusServo", 3},
                 {m_controller, "statusController", 5},
                 {m_usb, "statusUsb", 4}};
    for (const auto& entry : items) {
        entry.item->setObjectName(QLatin1String(entry.name));
        layout->addWidget(entry.item, entry.stretch);
    }
    layout->addWidget(m_language);

    connect(m_logIn, &QPushButton::clicked, this, &StatusBar::logInRequested);
    connect(m_language, &QPushButton::clicked, this, &StatusBar::languageRequested);
    connect(&UserSession::instance(), &UserSession::userLevelChanged, this, &StatusBar::refresh);
    connect(&UsbDrive::instance(), &UsbDrive::changed, this, &StatusBar::refresh);
    if (ControllerLink* link = currentLink())
        connect(link, &ControllerLink::stateChanged, this, &StatusBar::refresh);
    refresh();
}

void StatusBar::changeEvent(QEvent* event)
{
    if (event->type() == QEvent::LanguageChange)
        refresh();
    QFrame::changeEvent(event);
}

void StatusBar::refresh()
{
    const Languages& languages = Languages::instance();
    m_language->setText(
        QString::fromUtf8(Languages::all()[static_cast<std::size_t>(languages.index())].sign));
    m_language->setToolTip(tr("Language"));
    m_logIn->setText(tr("Level %1").arg(UserSession::instance().userLevel()));
    const ControllerLink* link = currentLink();
    m_program->show(link && link->isRobotRunning() ? Running : Stopped);
    m_servo->show(link && link->isServoOn() ? ServoOn : ServoOff);
    m_controller->show(!link ? NotConnected : link->isUp() ? Up : Restarting);
    m_usb->show(UsbDrive::instance().isInserted() ? DriveIn : DriveOut);
}
