#include "HomeScreen.h"

#include "ControllerLink.h"
#include "CurrentLink.h"

#include <QEvent>
#include <QLabel>
#include <QPushButton>
#include <QToolButton>
#include <QVBoxLayout>

namespace {
constexpr int Columns = 3;
constexpr int Gap = 24;
} // namespace

HomeScreen::HomeScreen(const std::vector<ApplicationInfo>& applications, QWidget* parent)
    : QWidget(parent)
    , m_title(new QLabel(this))
    , m_notice(new QLabel(this))
    , m_restart(new QPushButton(this))
{
    setObjectName(QStringLiteral("homeScreen"));

    m_title->setObjectName(QStringLiteral("homeTitle"));
    m_notice->setObjectName(QStringLiteral("homeNotice"));
    m_notice->setWordWrap(true);
    m_notice->hide();

    auto* tiles = new QGridLayout;
    tiles->setSpacing(Gap);
    tiles->setColumnStretch(Columns, 1);
    for (const ApplicationInfo& application : applications)
        addTile(tiles, application);

    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(48, 40, 48, 40);
    layout->setSpacing(32);
    layout->addWidget(m_title);
    layout->addLayout(tiles);
    layout->addWidget(m_notice);
    layout->addStretch(1);
    m_restart->setObjectName(QStringLiteral("restartButton"));
    m_restart->setMinimumSize(400, 64);
    m_restart->setFocusPolicy(Qt::NoFocus);
    connect(m_restart, &QPushButton::clicked, this, &HomeScreen::restartPressed);
    layout->addWidget(m_restart, 0, Qt::AlignRight);

    if (ControllerLink* link = currentLink())
        connect(link, &ControllerLink::stateChanged, this, &HomeScreen::refresh);
    refresh();
}

QString HomeScreen::tileName(const QString& className)
{
    return QStringLiteral("tile_%1").arg(className);
}

void HomeScreen::addTile(QGridLayout* grid, const ApplicationInfo& application)
{
    auto* tile = new QToolButton(this);
    tile->setObjectName(tileName(application.className));
    tile->setIcon(QIcon(application.icon));
    tile->setIconSize(QSize(64, 64));
    tile->setToolButtonStyle(Qt::ToolButtonTextUnderIcon);
    tile->setFixedSize(286, 168);
    tile->setFocusPolicy(Qt::NoFocus);
    connect(tile, &QToolButton::clicked, this,
            [this, className = application.className] { emit tilePressed(className); });
    const int index = static_cast<int>(m_tiles.size());
    grid->addWidget(tile, index / Columns, index % Columns);
    m_tiles.push_back({tile, application});
}

void HomeScreen::changeEvent(QEvent* event)
{
    if (event->type() == QEvent::LanguageChange)
        refresh();
    QWidget::changeEvent(event);
}

void HomeScreen::refresh()
{
    m_title->setText(tr("Applications"));
    m_restart->setText(tr("\u21BB  Close and reopen the pendant"));
    const ControllerLink* link = currentLink();
    const bool isDown = link && !link->isUp();
    for (const Tile& tile : m_tiles) {
        const bool waits = isDown && tile.application.needsController;
        tile.button->setEnabled(!waits);
        const QString name = tile.application.shownName();
        tile.button->setText(waits ? tr("%1\nController is restarting").arg(name) : name);
    }
}

void HomeScreen::setNotice(const QString& text)
{
    m_notice->setText(text);
    m_notice->setVisible(!text.isEmpty());
}

QString HomeScreen::notice() const
{
    return m_notice->text();
}
