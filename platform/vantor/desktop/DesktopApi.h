#ifndef VANTOR_DESKTOPAPI_H
#define VANTOR_DESKTOPAPI_H

#include <QString>

/// The pendant's desktop: which applications there are, and closing them.
class DesktopApi
{
public:
    /// The host's page id of an application class name, -1 when there is none.
    static int pageIdFromClassName(const QString& className);
    /// Closes the application page and shows the home screen. `forced` is true when a change of user level
    /// closes it. The application's widget is deleted on a later event-loop turn.
    static void closeApplication(int pageId, bool forced);
};

#endif
