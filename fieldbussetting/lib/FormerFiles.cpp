#include "FormerFiles.h"

#include "ControllerCopies.h"
#include "DataAccess.h"
#include "FileLocations.h"
#include "Logging.h"

#include <QFile>

#include <utility>

using Bytes = VersionStore::Bytes;
using Content = FileVersion::Content;

namespace {

constexpr std::size_t MostUnwritten = 50;

VersionStore store()
{
    return VersionStore(FileLocations::versionsDirectory());
}

// One attempt: a save is not held up by a controller that does not answer.
Bytes fetched(const QString& ctrlPath)
{
    const QString copy = FileLocations::workingDirectory() + QStringLiteral("/former");
    QFile::remove(copy);
    QByteArray bytes;
    const bool isFetched =
        DataAccess::GetFileFromController2TPU(ctrlPath, copy, false) && WholeFile::read(copy, bytes);
    QFile::remove(copy);
    return isFetched ? Bytes::of(bytes) : Bytes();
}

} // namespace

FormerFiles& FormerFiles::instance()
{
    static FormerFiles files;
    return files;
}

FormerFiles::Act::Act(FileVersion::Act act)
{
    instance().m_act = act;
    instance().m_group = 0;
}

FormerFiles::Act::~Act()
{
    instance().m_act = FileVersion::Act::Saved;
    instance().m_group = 0;
}

void FormerFiles::saw(const QString& ctrlPath, const QByteArray& bytes)
{
    m_seen[ctrlPath.toLower()] = Bytes::of(bytes);
}

void FormerFiles::sawCopy(const QString& ctrlPath, const QString& copy)
{
    QByteArray bytes;
    if (copy.isEmpty())
        m_seen[ctrlPath.toLower()] = {Content::Absent};
    else if (WholeFile::read(copy, bytes))
        saw(ctrlPath, bytes);
}

Bytes FormerFiles::formerOf(const QString& ctrlPath)
{
    const Bytes seen = m_seen.take(ctrlPath.toLower());
    if (seen.content != Content::Lost)
        return seen;
    const ControllerCopies::Copy known = ControllerCopies::instance().copy(ctrlPath);
    return known.isKnown ? Bytes::of(known.bytes) : fetched(ctrlPath);
}

qint64 FormerFiles::keep(const QString& ctrlPath, const QByteArray* sent)
{
    const Bytes former = formerOf(ctrlPath);
    if (sent && former.content == Content::Kept && former.bytes == *sent)
        return 0;
    return add(ctrlPath, former, sent ? Bytes::of(*sent) : Bytes{Content::Absent});
}

// What the disk did not take before comes first, without its bytes.
qint64 FormerFiles::add(const QString& ctrlPath, const Bytes& former, const Bytes& sent)
{
    FileVersion version;
    version.file = ctrlPath;
    version.time = QDateTime::currentDateTimeUtc();
    version.act = m_act;
    version.group = m_group;
    while (!m_unwritten.empty() && store().add(m_unwritten.front(), {}, {}) != 0)
        m_unwritten.erase(m_unwritten.begin());
    const qint64 number = m_unwritten.empty() ? store().add(version, former, sent) : 0;
    if (number == 0) {
        qCWarning(fieldbusLog) << "the former file could not be kept:" << ctrlPath;
        if (m_unwritten.size() < MostUnwritten)
            m_unwritten.push_back(version);
    }
    if (m_act != FileVersion::Act::Saved && m_group == 0)
        m_group = number;
    return number;
}

void FormerFiles::failed(qint64 number)
{
    if (number != 0)
        store().setFailed(number);
}

void FormerFiles::serviceBegins(const QString& ctrlPath)
{
    const Bytes former = fetched(ctrlPath);
    m_byService[ctrlPath.toLower()] = {add(ctrlPath, former, {}), former};
}

void FormerFiles::serviceEnds(const QString& ctrlPath, bool success)
{
    const Pending pending = m_byService.take(ctrlPath.toLower());
    if (pending.number == 0)
        return;
    if (!success) {
        store().setFailed(pending.number);
        return;
    }
    const Bytes sent = fetched(ctrlPath);
    const bool isKnown = sent.content == Content::Kept && pending.former.content == Content::Kept;
    if (isKnown && sent.bytes == pending.former.bytes)
        store().remove(pending.number);
    else
        store().setSent(pending.number, sent);
}
