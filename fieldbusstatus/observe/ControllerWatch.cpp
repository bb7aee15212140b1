#include "ControllerWatch.h"

#include "AnnouncedFiles.h"
#include "BusFileDataManager.h"
#include "ConfigurationFindings.h"
#include "RestartFiles.h"

#include <algorithm>

namespace {

constexpr double MsPerSecond = 1000.0;

// As long as this one tick may fetch files: what it takes longer than that, an operator feels.
constexpr qint64 MostFetchMs = 20;

// The clock of a controller that is there moves many times in this time. Ticks are counted as well: a pendant
// that was busy has not heard of it either.
constexpr qint64 StandstillMs = 1000;
constexpr int StandstillTicks = 8;

const RoleInfo* roleOfLink(const QString& variable)
{
    const auto found =
        std::find_if(RoleTable::Roles.begin(), RoleTable::Roles.end(), [&variable](const RoleInfo& role) {
            return role.linkVariable && variable == QLatin1String(role.linkVariable);
        });
    return found == RoleTable::Roles.end() ? nullptr : found;
}

qint64 sooner(qint64 one, qint64 other)
{
    return one < 0 ? other : other < 0 ? one : std::min(one, other);
}

} // namespace

ControllerWatch::ControllerWatch(const QString& folder, QObject* parent)
    : QObject(parent)
    , m_files(folder)
    , m_cameUp(folder)
    , m_standing(announcedFiles().size())
{
    m_time.start();
    m_downSince.fill(-1);
    m_variables.subscribe();
}

void ControllerWatch::refresh()
{
    m_files.wantAll();
    m_isDirty = true;
}

void ControllerWatch::tick()
{
    followClock();
    followVariables();
    if (m_contact == Contact::There)
        fetchNext();
    if (m_isDirty || (m_nextLook >= 0 && m_time.elapsed() >= m_nextLook))
        evaluate();
}

void ControllerWatch::followClock()
{
    const double clock = m_variables.clock();
    const bool hasMoved = !m_variables.hasClock() || (m_isClockKnown && clock != m_clock);
    m_clock = clock;
    m_isClockKnown = true;
    if (hasMoved) {
        heard();
        return;
    }
    ++m_ticksStill;
    if (m_contact != Contact::There || m_ticksStill < StandstillTicks ||
        m_time.elapsed() - m_clockMoved < StandstillMs)
        return;
    m_contact = Contact::Lost;
    m_isDirty = true;
    emit contactChanged(m_contact);
}

void ControllerWatch::heard()
{
    m_ticksStill = 0;
    m_clockMoved = m_time.elapsed();
    if (m_contact == Contact::There)
        return;
    const bool isFirst = m_contact == Contact::Waiting;
    m_contact = Contact::There;
    for (qint64& since : m_downSince)
        since = since < 0 ? since : m_time.elapsed();
    // What it has come up with is what its files say now, unless it was up before this pendant.
    const CameUp::Files kept = isFirst ? m_cameUp.kept(m_clock) : CameUp::Files();
    m_isCameUpPending = kept.isEmpty();
    if (!kept.isEmpty())
        cameUpWith(kept);
    refresh();
    emit contactChanged(m_contact);
}

void ControllerWatch::followVariables()
{
    for (const ObservedVariables::Change& change : m_variables.poll())
        follow(change);
}

void ControllerWatch::follow(const ObservedVariables::Change& change)
{
    m_isDirty = true;
    if (const RoleInfo* role = roleOfLink(*change.name))
        m_downSince[static_cast<std::size_t>(role->id)] = change.now == 0 ? m_time.elapsed() : -1;
    const auto& all = announcedFiles();
    for (std::size_t i = 0; i < all.size(); ++i) {
        if (*change.name != QLatin1String(all[i].variable))
            continue;
        const bool isStanding = (change.now & all[i].mask) != 0;
        if (isStanding != (m_standing[i].since >= 0))
            m_standing[i].since = isStanding ? m_time.elapsed() : -1;
        if (change.isFirst)
            continue;
        for (const FileId file : all[i].files)
            m_files.want(file);
    }
    if (!change.isFirst)
        emit variableChanged(*change.name, change.before, change.now);
}

void ControllerWatch::fetchNext()
{
    if (m_files.wanted() == 0)
        return;
    QElapsedTimer spent;
    spent.start();
    // What did not come, or not whole, is tried again at a later tick.
    for (bool isOn = true; isOn && m_files.wanted() > 0;) {
        const auto step = m_files.step();
        isOn = step && spent.elapsed() < MostFetchMs;
        if (!step || !step->isChanged)
            continue;
        m_areFilesChanged = true;
        emit fileChanged(step->file, step->before.value_or(QByteArray()),
                         m_files.bytes(step->file).value_or(QByteArray()));
    }
    if (m_files.wanted() > 0)
        return;
    m_isDirty = true;
    m_isRead = true;
    m_readAt = QDateTime::currentDateTime();
    if (!m_isCameUpPending)
        m_cameUp.keep(m_running.cameUp, m_clock); // by clocks that have had less time to drift apart
}

void ControllerWatch::readFiles()
{
    m_areFilesChanged = false;
    m_configuration = Configuration::from([this](const KnownFile& file) { return m_files.bytes(file.id); });
}

CameUp::Files ControllerWatch::restartFiles() const
{
    CameUp::Files files;
    const auto add = [this, &files](FileId file) {
        if (m_files.bytes(file))
            files[static_cast<int>(file)] = *m_files.bytes(file);
    };
    add(FileId::RoleList);
    for (const FileId file : RestartFiles)
        add(file);
    return files;
}

void ControllerWatch::cameUpWith(const CameUp::Files& files)
{
    m_running.cameUp = files;
    m_running.running.reset();
    std::vector<ListedRole> listed;
    const auto list = files.constFind(static_cast<int>(FileId::RoleList));
    if (list != files.cend() && RoleListFile::read(*list, listed)) {
        m_running.running.emplace();
        for (const ListedRole& role : listed) {
            if (const RoleInfo* known = RoleTable::named(role.name))
                (*m_running.running)[static_cast<std::size_t>(known->id)] = role.on;
        }
    }
    m_cameUp.keep(files, m_clock);
}

void ControllerWatch::evaluate()
{
    m_isDirty = false;
    m_nextLook = -1;
    // As a whole: a file is not told to contradict one that is still on its way.
    if (m_files.wanted() == 0 && m_areFilesChanged)
        readFiles();
    if (m_files.wanted() == 0 && m_isRead && m_isCameUpPending && m_contact == Contact::There) {
        m_isCameUpPending = false;
        cameUpWith(restartFiles());
    }
    gatherVariables();
    gatherDownTimes();
    m_running.profisafePresent = BusFileDataManager::getInstance()->checkProfiSAFEStatus() == 1;
    if (isSettled())
        m_findings = findingsOf(m_configuration, &m_running);
    judgeSubjects();
    ++m_version;
}

void ControllerWatch::gatherVariables()
{
    m_running.variables = m_variables.values();
    m_announced = {};
    const auto& all = announcedFiles();
    for (std::size_t i = 0; i < all.size(); ++i) {
        if (m_standing[i].since < 0)
            continue;
        const qint64 end = m_standing[i].since + all[i].graceMs;
        if (m_time.elapsed() >= end)
            continue;
        m_nextLook = sooner(m_nextLook, end);
        int& value = m_running.variables[QLatin1String(all[i].variable)];
        value &= ~all[i].mask;
        if (all[i].role)
            m_announced[static_cast<std::size_t>(*all[i].role)] = true;
    }
}

// The findings change when half of a watch's time has passed, from then on every second, and when it is over.
void ControllerWatch::gatherDownTimes()
{
    constexpr double Soon = 0.5;
    constexpr qint64 CountMs = 1000;
    const qint64 now = m_time.elapsed();
    m_running.downFor = {};
    for (const RoleInfo& role : RoleTable::Roles) {
        const auto index = static_cast<std::size_t>(role.id);
        if (m_downSince[index] < 0 || !role.heartbeatKey || m_contact != Contact::There)
            continue;
        const qint64 down = now - m_downSince[index];
        m_running.downFor[index] = static_cast<double>(down) / MsPerSecond;
        for (const auto& field : HeartbeatConfig::fields()) {
            if (qstrcmp(field.bus, role.heartbeatKey) != 0 || !(m_configuration.heartbeat.*field.nodSwitch))
                continue;
            const double timeoutMs = m_configuration.heartbeat.*field.timeout * MsPerSecond;
            if (!(static_cast<double>(down) < timeoutMs))
                continue;
            const bool isSoon = static_cast<double>(down) >= Soon * timeoutMs;
            const double next =
                isSoon ? std::min(timeoutMs, static_cast<double>(down + CountMs)) : Soon * timeoutMs;
            m_nextLook = sooner(m_nextLook, m_downSince[index] + static_cast<qint64>(next) + 1);
        }
    }
}

void ControllerWatch::judgeSubjects()
{
    const Subjects::Facts facts{m_configuration, m_running, m_findings, isSettled(), m_announced};
    for (Subjects::Id id = 0; id < Subjects::Count; ++id) {
        Subjects::State state = Subjects::judge(id, facts);
        const Subjects::State& before = m_subjects[id];
        // Nobody knows for how long it had been what it is when it was seen first.
        const bool isNew = m_isJudged && state.health != before.health;
        state.since = isNew ? QDateTime::currentDateTime() : before.since;
        m_subjects[id] = state;
    }
    m_isJudged = m_isJudged || isSettled();
}
