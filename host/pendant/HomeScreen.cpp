#include "HomeScreen.h"

#include <QLabel>
#include <QToolButton>
#include <QVBoxLayout>

HomeScreen::HomeScreen(QWidget* parent)
    : QWidget(parent)
    , m_tile(new QToolButton(this))
    , m_notice(new QLabel(this))
{
    setObjectName(QStringLiteral("homeScreen"));

    auto* title = new QLabel(tr("Applications"), this);
    title->setObjectName(QStringLiteral("homeTitle"));

    m_tile->setObjectName(QStringLiteral("applicationTile"));
    m_tile->setText(tr("Fieldbus settings"));
    m_tile->setIcon(QIcon(QStringLiteral(":/host/application.png")));
    m_tile->setIconSize(QSize(64, 64));
    m_tile->setToolButtonStyle(Qt::ToolButtonTextUnderIcon);
    m_tile->setMinimumSize(260, 150);
    m_tile->setFocusPolicy(Qt::NoFocus);

    m_notice->setObjectName(QStringLiteral("homeNotice"));
    m_notice->setWordWrap(true);
    m_notice->hide();

    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(48, 40, 48, 40);
    layout->setSpacing(32);
    layout->addWidget(title);
    layout->addWidget(m_tile, 0, Qt::AlignLeft);
    layout->addWidget(m_notice);
    layout->addStretch(1);

    connect(m_tile, &QToolButton::clicked, this, &HomeScreen::tilePressed);
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
