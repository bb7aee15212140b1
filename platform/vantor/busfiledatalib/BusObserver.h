#ifndef VANTOR_BUSOBSERVER_H
#define VANTOR_BUSOBSERVER_H

#include <QString>

/// Someone who wants to know what the bus file data service fetched or sent. Notifications come on the GUI
/// thread, on a later event-loop turn than the request. An observer detaches before it dies.
class BusObserver
{
public:
    virtual ~BusObserver() = default;

    /// `kind` 0: the file at the controller path `path` was fetched and read; 1: it was written and sent.
    virtual void busNotification(int kind, const QString& path, bool success) = 0;

    /// Whether notifications about "fieldbus.xml" are wanted; starts false.
    void setIsFieldXml(bool wanted) { m_wantsFieldXml = wanted; }
    /// Whether notifications about "fieldbus_config.xml" are wanted; starts false.
    void setIsFieldbusCfg(bool wanted) { m_wantsFieldbusCfg = wanted; }
    bool isFieldXml() const { return m_wantsFieldXml; }
    bool isFieldbusCfg() const { return m_wantsFieldbusCfg; }

private:
    bool m_wantsFieldXml = false;
    bool m_wantsFieldbusCfg = false;
};

#endif
