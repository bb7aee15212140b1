#include "HomeScreen.h"

#include "ApplicationInfo.h"
#include "ControllerLink.h"
#include "CurrentLink.h"

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
    , m_notice(new QLabel(this))
{
    setObjectName(QStringLiteral("homeScreen"));

    auto* title = new QLabel(tr("Applications"), this);
    title->setObjectName(QStringLiteral("homeTitle"));
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
    layout->addWidget(title);
    layout->addLayout(tiles);
    layout->addWidget(m_notice);
    layout->addStretch(1);
    auto* restart = new QPushButton(tr("\u21BB  Close and reopen the pendant"), this);
    restart->setObjectName(QStringLiteral("restartButton"));
    restart->setMinimumSize(400, 64);
    restart->setFocusPolicy(Qt::NoFocus);
    connect(restart, &QPushButton::clicked, this, &HomeScreen::restartPressed);
    layout->addWidget(restart, 0, Qt::AlignRight);

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
    m_tiles.push_back({tile, application.name, application.needsController});
}

void HomeScreen::refresh()
{
    const ControllerLink* link = currentLink();
    const bool isDown = link && !link->isUp();
    for (const Tile& tile : m_tiles) {
        const bool waits = isDown && tile.needsController;
        tile.button->setEnabled(!waits);
        tile.button->setText(waits ? tr("%1\nController is restarting").arg(tile.name) : tile.name);
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
