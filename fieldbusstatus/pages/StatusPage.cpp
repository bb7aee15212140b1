#include "StatusPage.h"

#include "ControllerWatch.h"

#include <QLabel>
#include <QVBoxLayout>

StatusPage::StatusPage(const char* className, const StatusContext& pageContext)
    : m_context(pageContext)
    , m_title(new QLabel(this))
    , m_contents(new QVBoxLayout(this))
{
    setObjectName(QLatin1String(className));
    m_title->setProperty("title", true);
    m_contents->setContentsMargins(16, 4, 16, 12);
    m_contents->setSpacing(8);
    m_contents->addWidget(m_title);
}

void StatusPage::setTitle(const QString& title)
{
    m_title->setText(title);
}

int StatusPage::version() const
{
    return watch().version();
}

void StatusPage::idle()
{
    const int now = version();
    if (now == m_shownVersion)
        return;
    m_shownVersion = now;
    showState();
}

void StatusPage::showEvent(QShowEvent* event)
{
    QWidget::showEvent(event);
    idle();
}
