#include "BusFileService.h"

#include "BusObserver.h"
#include "ControllerLink.h"
#include "CurrentLink.h"
#include "HostLog.h"

#include <QString>

#include <algorithm>

namespace {

// As File counts. The texts are what observers compare with.
constexpr std::array<const char*, 2> Paths{"/application/fidbus/fieldbus.xml",
                                           "/application/fidbus/fieldbus_config.xml"};

// Buses that can hold the communication performance, by their bit in the switch word, and the role that has
// to be switched on. The Modbus TCP slave always is.
struct PerformanceBus
{
    int number;
    const char* role;
};
constexpr std::array<PerformanceBus, 3> PerformanceBuses{
    {{0, nullptr}, {2, "EtherNetIPSlave"}, {3, "ProfinetSlave"}}};

} // namespace

BusFileService& BusFileService::instance()
{
    static BusFileService service;
    return service;
}

void BusFileService::resetSession()
{
    config = {};
    mapping = {};
    m_observers.clear();
    m_notified.fill(false);
    m_queue = std::make_unique<QObject>();
    m_watched.clear();
    g_lastBusType = -1;
}

void BusFileService::attach(BusObserver* observer)
{
    if (observer && !isAttached(observer))
        m_observers.push_back(observer);
}

void BusFileService::detach(BusObserver* observer)
{
    m_observers.erase(std::remove(m_observers.begin(), m_observers.end(), observer), m_observers.end());
}

bool BusFileService::isAttached(const BusObserver* observer) const
{
    return std::find(m_observers.begin(), m_observers.end(), observer) != m_observers.end();
}

void BusFileService::fetch(File file)
{
    ControllerLink* const link = currentLink();
    QByteArray bytes;
    const bool success = link && link->fetchFile(QLatin1String(Paths[file]), bytes) &&
                         (file == FieldbusXml ? config.parse(bytes) : mapping.parse(bytes));
    if (!success)
        qCWarning(lcHost) << "could not fetch and read" << Paths[file];
    watchRestarts(link);
    notifyLater(file, 0, success);
}

void BusFileService::send(File file)
{
    ControllerLink* const link = currentLink();
    const QByteArray bytes = file == FieldbusXml ? config.toBytes() : mapping.toBytes();
    const bool success = link && !bytes.isEmpty() && link->storeFile(QLatin1String(Paths[file]), bytes);
    if (!success)
        qCWarning(lcHost) << "could not write and send" << Paths[file];
    if (file == FieldbusXml) {
        if (success)
            config.parse(bytes);
        else
            config.revert();
    }
    notifyLater(file, 1, success);
}

// A restart may bring up other files than those that were read. What is held stays for the application that
// is open; the next one that opens reads anew.
void BusFileService::watchRestarts(ControllerLink* link)
{
    if (!link || link == m_watched)
        return;
    m_watched = link;
    m_wasUp = link->isUp();
    QObject::connect(link, &ControllerLink::stateChanged, m_queue.get(), [this, link] {
        if (link->isUp() && !m_wasUp)
            m_notified.fill(false);
        m_wasUp = link->isUp();
    });
}

void BusFileService::notifyLater(File file, int kind, bool success)
{
    QMetaObject::invokeMethod(
        m_queue.get(), [this, file, kind, success] { notify(file, kind, success); }, Qt::QueuedConnection);
}

void BusFileService::notify(File file, int kind, bool success)
{
    m_notified[file] = m_notified[file] || success;
    // An observer may show a box, and while it waits anything can happen: others detach and die, new ones
    // come (they wait for the next result), the session ends.
    const std::vector<BusObserver*> present = m_observers;
    const QString path = QLatin1String(Paths[file]);
    for (BusObserver* observer : present) {
        if (isAttached(observer) &&
            (file == FieldbusXml ? observer->isFieldXml() : observer->isFieldbusCfg()))
            observer->busNotification(kind, path, success);
    }
}

BusMappingFile::Mode BusFileService::mode() const
{
    return config.isEnabled(QStringLiteral("FreeBus")) ? BusMappingFile::Free : BusMappingFile::Fixed;
}

int BusFileService::performanceValue(int bus, int current, bool on) const
{
    const auto known =
        std::find_if(PerformanceBuses.begin(), PerformanceBuses.end(),
                     [bus](const PerformanceBus& candidate) { return candidate.number == bus; });
    if (known == PerformanceBuses.end())
        return -1;
    const int bit = 1 << bus;
    if (!on)
        return current & ~bit;
    if (known->role && !config.isEnabled(QLatin1String(known->role)))
        return -1;
    // One bus at a time: the page of the one that loses it unticks its box when it is shown next. A loser
    // whose page was not shown since, and that takes it back, is none any more.
    if (g_lastBusType == bus)
        g_lastBusType = -1;
    for (const PerformanceBus& other : PerformanceBuses) {
        if (other.number != bus && (current & (1 << other.number)) != 0)
            g_lastBusType = other.number;
    }
    return bit;
}
