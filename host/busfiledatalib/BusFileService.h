#ifndef HOST_BUSFILESERVICE_H
#define HOST_BUSFILESERVICE_H

#include "BusConfigFile.h"
#include "BusFileDataManager.h"
#include "BusMappingFile.h"

#include <QObject>
#include <QPointer>

#include <array>
#include <memory>
#include <vector>

class BusObserver;
class ControllerLink;

/// What stands behind `BusFileDataManager`: the two files as they were last read or set, and the observers.
/// Every result is notified on a later event-loop turn.
class BusFileService
{
public:
    /// The two files that are notified.
    enum File { FieldbusXml, FieldbusCfg };

    static BusFileService& instance();
    BusFileService() = default;

    /// Forgets files, results, waiting notifications and observers, as a restart of the pendant does.
    void resetSession();

    void attach(BusObserver* observer);
    void detach(BusObserver* observer);

    /// Whether a file that was read is held and its result was notified. A failure does not count, and
    /// neither does what was read before the controller restarted: the next one who asks tries again.
    bool isNotified(File file) const { return m_notified[file]; }
    void fetch(File file);
    /// Sends the file with what was set. Without a file that was read there is nothing to send, and the
    /// notified result is false. Roles that could not be sent are forgotten: the controller does not have
    /// them.
    void send(File file);

    BusConfigFile config;
    BusMappingFile mapping;
    /// Mode that the free-bus role selects.
    BusMappingFile::Mode mode() const;

    int performanceValue(int bus, int current, bool on) const;

private:
    bool isAttached(const BusObserver* observer) const;
    void watchRestarts(ControllerLink* link);
    void notifyLater(File file, int kind, bool success);
    void notify(File file, int kind, bool success);

    std::vector<BusObserver*> m_observers;
    std::array<bool, 2> m_notified{};
    QPointer<ControllerLink> m_watched;
    bool m_wasUp = true;
    std::unique_ptr<QObject> m_queue = std::make_unique<QObject>(); ///< receives the queued notifications
};

#endif
