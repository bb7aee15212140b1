#include "HistoryRecorder.h"

#include "FileChanges.h"

#include <QDir>
#include <QFile>

#include <algorithm>
#include <sys/stat.h>

using Contact = ControllerWatch::Contact;
using Kind = StatusEvent::Kind;

namespace {

// What the service sends is complete when it was read back; a pendant that was ended meanwhile never will.
constexpr qint64 IncompleteMs = 20000;

// Bits by which the controller says that it does not accept what was announced.
struct Refusal
{
    const char* variable;
    int bit;
    const char* subject;
};
constexpr Refusal Refusals[] = {
    {"ifidbus.xml_update_state", 0x800, "fieldbus_config.xml"},
    {"ifidbus.bus_type_state", 0x4000, "fieldbus.xml"},
};

bool isComplete(const FileVersion& version)
{
    return version.hasFailed || version.sent.content != FileVersion::Content::Lost;
}

} // namespace

HistoryRecorder::HistoryRecorder(ControllerWatch& watch, const QString& folder, VersionStore store)
    : m_log(folder + QStringLiteral("/history.jsonl"))
    , m_store(std::move(store))
    , m_indexPath(QFile::encodeName(m_store.indexPath()))
{
    QDir().mkpath(folder);
    m_time.start();
    m_lostAt.fill(-1);
    for (const StatusEvent& event : events())
        m_lastVersion = event.version > 0 ? event.version : m_lastVersion;
    record({{}, Kind::Started, {}});
    connect(&watch, &ControllerWatch::variableChanged, this, &HistoryRecorder::hearVariable);
    connect(&watch, &ControllerWatch::contactChanged, this, &HistoryRecorder::hearContact);
}

std::vector<StatusEvent> HistoryRecorder::events() const
{
    std::vector<StatusEvent> all;
    for (const QJsonObject& object : m_log.events()) {
        if (const std::optional<StatusEvent> event = StatusEvent::fromJson(object))
            all.push_back(*event);
    }
    return all;
}

void HistoryRecorder::record(StatusEvent event)
{
    if (!event.time.isValid())
        event.time = QDateTime::currentDateTimeUtc();
    m_log.append(event.toJson());
    ++m_version;
}

void HistoryRecorder::tick()
{
    const Stamp now = stampOfVersions();
    const bool isDue = m_lookAgainAt >= 0 && m_time.elapsed() >= m_lookAgainAt;
    if (now == m_seen && !isDue)
        return;
    m_seen = now;
    recordVersions();
}

void HistoryRecorder::hearVariable(const QString& name, int before, int now)
{
    for (const RoleInfo& role : RoleTable::Roles) {
        if (!role.linkVariable || name != QLatin1String(role.linkVariable) || (before == 0) == (now == 0))
            continue;
        qint64& lostAt = m_lostAt[static_cast<std::size_t>(role.id)];
        if (now == 0) {
            record({{}, Kind::LinkLost, role.id});
            lostAt = m_time.elapsed();
        } else {
            record({{}, Kind::LinkBack, role.id, lostAt < 0 ? -1 : m_time.elapsed() - lostAt});
            lostAt = -1;
        }
    }
    for (const Refusal& refusal : Refusals) {
        if (name == QLatin1String(refusal.variable) && (before & refusal.bit) == 0 &&
            (now & refusal.bit) != 0)
            record({{}, Kind::Refused, {}, -1, QLatin1String(refusal.subject)});
    }
}

// The first contact is that of a pendant that has just started.
void HistoryRecorder::hearContact(Contact contact)
{
    if (contact == Contact::Lost) {
        record({{}, Kind::ControllerLost, {}});
        m_contactLostAt = m_time.elapsed();
    } else if (contact == Contact::There && m_contactLostAt >= 0) {
        record({{}, Kind::ControllerBack, {}, m_time.elapsed() - m_contactLostAt});
        m_contactLostAt = -1;
    }
}

HistoryRecorder::Stamp HistoryRecorder::stampOfVersions() const
{
    struct stat status = {};
    if (::stat(m_indexPath.constData(), &status) != 0)
        return {};
    return {status.st_mtim.tv_sec, status.st_mtim.tv_nsec, static_cast<qint64>(status.st_ino)};
}

void HistoryRecorder::recordVersions()
{
    m_lookAgainAt = -1;
    const std::vector<FileVersion> all = m_store.versions();
    if (all.empty())
        return;
    // Another store: its numbers begin anew.
    if (all.back().number < m_lastVersion)
        m_lastVersion = 0;
    for (const FileVersion& version : all) {
        if (version.number <= m_lastVersion)
            continue;
        const qint64 age = version.time.msecsTo(QDateTime::currentDateTimeUtc());
        if (!isComplete(version) && age >= 0 && age < IncompleteMs) {
            m_lookAgainAt = m_time.elapsed() + IncompleteMs - age;
            return;
        }
        const FileChanges::Words words = FileChanges::wordsOf(m_store, version);
        m_lastVersion = version.number;
        record({version.time, Kind::Sent, words.role ? std::optional<RoleId>(words.role->id) : std::nullopt,
                -1, FileChanges::nameOf(version), words.lines, version.number});
    }
}
