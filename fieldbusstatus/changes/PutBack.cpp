#include "PutBack.h"

#include "Announcements.h"
#include "DataAccess.h"
#include "SysSettingApi.h"

#include <QDir>
#include <QFile>

using Content = FileVersion::Content;

namespace {
constexpr int FetchAttempts = 5;
constexpr unsigned BetweenAttemptsMs = 100;
} // namespace

PutBack::PutBack(VersionStore store, FileChanges::Change change, QString folder)
    : m_store(std::move(store))
    , m_change(std::move(change))
    , m_folder(std::move(folder))
{
}

bool PutBack::isPossible(const FileChanges::Change& change)
{
    for (const FileVersion& version : change) {
        if (version.former.content != Content::Kept || version.sent.content != Content::Kept ||
            version.hasFailed)
            return false;
    }
    return !change.empty();
}

bool PutBack::isRobotAtRest()
{
    return !DataAccess::isRobotRunning() && !DataAccess::isServoOn();
}

std::optional<QByteArray> PutBack::fetch(const QString& ctrlPath) const
{
    const QString local = m_folder + QStringLiteral("/present");
    QDir().mkpath(m_folder);
    for (int attempt = 0; attempt < FetchAttempts; ++attempt) {
        if (attempt > 0)
            SysSettingApi::delay_MSec(BetweenAttemptsMs);
        QByteArray bytes;
        const bool isFetched =
            DataAccess::GetFileFromController2TPU(ctrlPath, local, false) && WholeFile::read(local, bytes);
        QFile::remove(local);
        if (isFetched)
            return bytes;
    }
    return std::nullopt;
}

// What arrived broken looks like another file: it is believed when it comes twice.
PutBack::Result PutBack::judge(const FileVersion& version)
{
    m_file = FileChanges::nameOf(version);
    if (!m_store.bytes(version.former))
        return Result::NotKept;
    for (int attempt = 0; attempt < 2; ++attempt) {
        const std::optional<QByteArray> present = fetch(version.file);
        if (!present)
            return Result::NotFetched;
        m_present = *present;
        const QByteArray hash = VersionStore::hashOf(m_present);
        if (hash == version.former.hash)
            return Result::Nothing;
        if (hash == version.sent.hash)
            return Result::Done;
    }
    return Result::ChangedSince;
}

PutBack::Result PutBack::look()
{
    m_toSend.clear();
    for (const FileVersion& version : m_change) {
        const Result result = judge(version);
        if (result == Result::Done)
            m_toSend.push_back(version);
        else if (result != Result::Nothing)
            return result;
    }
    return m_toSend.empty() ? Result::Nothing : Result::Done;
}

PutBack::Result PutBack::send()
{
    for (auto version = m_toSend.rbegin(); version != m_toSend.rend(); ++version) {
        const Result result = sendOne(*version);
        if (result != Result::Done && result != Result::Nothing)
            return result;
        m_done << FileChanges::nameOf(*version);
    }
    return Result::Done;
}

PutBack::Result PutBack::sendOne(const FileVersion& version)
{
    const Result judged = judge(version);
    if (judged != Result::Done)
        return judged;
    const std::optional<QByteArray> former = m_store.bytes(version.former);
    if (!former)
        return Result::NotKept;
    FileVersion kept;
    kept.file = version.file;
    kept.time = QDateTime::currentDateTimeUtc();
    kept.act = FileVersion::Act::PutBack;
    kept.group = m_group;
    const QString local = m_folder + QStringLiteral("/former");
    if (!WholeFile::replace(local, *former))
        return Result::NoRoom;
    // Nothing processes events from here to the sending.
    if (!isRobotAtRest())
        return Result::RobotMoves;
    const qint64 number =
        m_store.add(kept, VersionStore::Bytes::of(m_present), VersionStore::Bytes::of(*former));
    if (number == 0)
        return Result::NoRoom;
    m_group = m_group == 0 ? number : m_group;
    const bool hasArrived = deliver(version, *former);
    QFile::remove(local);
    if (hasArrived)
        return Result::Done;
    m_store.setFailed(number);
    return Result::NotArrived;
}

bool PutBack::deliver(const FileVersion& version, const QByteArray& former)
{
    const KnownFile* file = FileChanges::fileOf(version);
    if (file)
        Announcements::beforeSend(file->id);
    if (!DataAccess::SendFileFromTPU2Controller(m_folder + QStringLiteral("/former"), version.file, false) ||
        fetch(version.file) != former)
        return false;
    if (file)
        Announcements::afterSend(file->id, former);
    m_needsRestart = m_needsRestart || !file || Announcements::needsRestart(file->id);
    return true;
}
