#include "DesktopApi.h"

#include "Desktop.h"

int DesktopApi::pageIdFromClassName(const QString& className)
{
    return Desktop::instance().pageId(className);
}

void DesktopApi::closeApplication(int pageId, bool forced)
{
    Desktop::instance().requestClose(pageId, forced);
}
