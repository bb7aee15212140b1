#ifndef HOST_DESKTOP_H
#define HOST_DESKTOP_H

#include <QObject>
#include <QStringList>

/// The desktop of this pendant: which applications there are, and who hears that one is to be closed.
class Desktop : public QObject
{
    Q_OBJECT

public:
    static Desktop& instance();

    /// Makes an application known; its page id, the same one for the same name.
    int addApplication(const QString& className);
    /// -1 for a name that was never added. Names are matched exactly.
    int pageId(const QString& className) const;
    /// Passes the request on; a page id that does not exist is ignored.
    void requestClose(int pageId, bool forced);

signals:
    /// An application wants to be closed, or (`forced`) has to be. Emitted while the application's own code
    /// is still running, so a receiver must not delete it on the spot.
    void closeRequested(int pageId, bool forced);

private:
    Desktop() = default;

    QStringList m_applications; ///< the page id counts from FirstPageId
};

#endif
