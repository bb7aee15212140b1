#include "Desktop.h"

#include "HostLog.h"

namespace {
// Pages below are the pendant's own.
constexpr int FirstPageId = 100;
} // namespace

Desktop& Desktop::instance()
{
    static Desktop desktop;
    return desktop;
}

int Desktop::addApplication(const QString& className)
{
    if (!m_applications.contains(className))
        m_applications.append(className);
    return pageId(className);
}

int Desktop::pageId(const QString& className) const
{
    const int index = m_applications.indexOf(className);
    return index < 0 ? -1 : FirstPageId + index;
}

void Desktop::requestClose(int pageId, bool forced)
{
    const int index = pageId - FirstPageId;
    if (index < 0 || index >= m_applications.size()) {
        qCWarning(lcHost) << "no application with page id" << pageId;
        return;
    }
    emit closeRequested(pageId, forced);
}
