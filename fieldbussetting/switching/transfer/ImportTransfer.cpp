#include "ImportTransfer.h"

#include "ControllerCopies.h"
#include "ControllerFiles.h"
#include "DataAccess.h"
#include "DurableFiles.h"
#include "FieldbusSettingLib.h"
#include "FileHash.h"
#include "FormerFiles.h"
#include "ImportJournal.h"
#include "Logging.h"
#include "SysSettingApi.h"
#include "WholeFile.h"

using ControllerFiles::Fetched;
using ControllerFiles::fetchOrMiss;
using ControllerFiles::isThere;
using ControllerFiles::scratchCopy;

namespace {

constexpr int PutBackTries = 3;
constexpr unsigned BetweenTriesMs = 100;

enum class Back {
    Done,
    Failed,
    Foreign ///< neither what was sent nor the former one: it is somebody else's
};

FieldbusSettingLib* lib()
{
    return FieldbusSettingLib::getInstance();
}

bool isRobotAtRest()
{
    return !DataAccess::isRobotRunning() && !DataAccess::isServoOn();
}

// Brings the controller to the former file, or to none. What has not arrived as it was sent is the import's
// too (`mayBeAnything`): then there is nobody else's file to be lost.
Back putBackOne(const ImportEntry& entry, bool mayBeAnything)
{
    const ImportFile& file = *entry.file;
    const bool wasThere = entry.state != ImportEntry::New;
    const Fetched fetched = fetchOrMiss(scratchCopy(), file.controller);
    if (fetched == Fetched::Absent && !wasThere)
        return Back::Done;
    if (fetched == Fetched::Yes) {
        if (wasThere && WholeFile::areSame(scratchCopy(), file.kept()))
            return Back::Done;
        const QByteArray hash = FileHash::of(scratchCopy());
        if (hash.isEmpty())
            return Back::Failed;
        if (hash != entry.sentHash && !mayBeAnything)
            return Back::Foreign;
    } else if (fetched != Fetched::Absent) {
        return Back::Failed;
    }
    FormerFiles::instance().sawCopy(file.controller, fetched == Fetched::Yes ? scratchCopy() : QString());
    if (wasThere)
        return lib()->sendFileToCtrl(file.kept(), file.controller) && isThere(file.controller, file.kept())
                   ? Back::Done
                   : Back::Failed;
    const qint64 kept = FormerFiles::instance().keep(file.controller, nullptr);
    ControllerCopies::instance().changed(file.controller);
    if (SysSettingApi::removeRemoteFile(file.controller))
        return Back::Done;
    FormerFiles::failed(kept);
    return Back::Failed;
}

Back putBackTried(const ImportEntry& entry, bool mayBeAnything)
{
    Back back = Back::Failed;
    for (int attempt = 0; attempt < PutBackTries && back == Back::Failed && isRobotAtRest(); ++attempt) {
        if (attempt > 0)
            SysSettingApi::delay_MSec(BetweenTriesMs);
        back = putBackOne(entry, mayBeAnything);
    }
    return back;
}

ImportEntry::State stateOf(const ImportFile& file)
{
    return WholeFile::areSame(file.present(), file.staged()) ? ImportEntry::Same : ImportEntry::Different;
}

TransferResult localFailure(const QString& path)
{
    return {TransferResult::LocalFailed, path};
}

} // namespace

ImportTransfer::ImportTransfer(std::vector<ImportEntry>& entries)
    : m_entries(entries)
{
}

ImportTransfer::~ImportTransfer()
{
    if (isBegun() && !putBack())
        qCWarning(fieldbusLog) << "import undone in part, not put back:" << notPutBack();
}

TransferResult ImportTransfer::fetchPresent(TransferWatch& watch)
{
    if (!prepareImportDirectory(presentDirectory()))
        return localFailure(presentDirectory());
    for (ImportEntry& entry : m_entries) {
        if (!entry.isBrought())
            continue;
        const ImportFile& file = *entry.file;
        const Fetched fetched = fetchOrMiss(file.present(), file.controller);
        if (fetched == Fetched::NoRoom)
            return localFailure(file.present());
        if (fetched == Fetched::Failed)
            return {watch.isWanted() ? TransferResult::FetchFailed : TransferResult::Unwanted, file.name};
        entry.state = fetched == Fetched::Absent ? ImportEntry::New : stateOf(file);
        if (!watch.step())
            return {TransferResult::Unwanted, {}};
    }
    return {};
}

TransferResult ImportTransfer::seal()
{
    for (ImportEntry& entry : m_entries) {
        if (!entry.isBrought())
            continue;
        if (entry.state != ImportEntry::New)
            entry.state = stateOf(*entry.file);
        entry.sentHash = FileHash::of(entry.file->staged());
        if (entry.sentHash.isEmpty())
            return localFailure(entry.file->staged());
    }
    return {};
}

TransferResult ImportTransfer::confirmPresent(TransferWatch& watch)
{
    for (const ImportEntry& entry : m_entries) {
        if (!entry.isBrought())
            continue;
        const ImportFile& file = *entry.file;
        const bool isNew = entry.state == ImportEntry::New;
        const Fetched fetched = fetchOrMiss(scratchCopy(), file.controller);
        if (fetched == Fetched::NoRoom)
            return localFailure(scratchCopy());
        const bool isKnown = fetched == Fetched::Yes || (isNew && fetched == Fetched::Absent);
        const bool isUnchanged =
            isNew ? fetched == Fetched::Absent : isKnown && WholeFile::areSame(scratchCopy(), file.present());
        if (!isUnchanged && !watch.isWanted())
            return {TransferResult::Unwanted, {}};
        if (!isUnchanged)
            return {isKnown ? TransferResult::Changed : TransferResult::FetchFailed, file.name};
        if (!watch.step())
            return {TransferResult::Unwanted, {}};
    }
    return {};
}

TransferResult ImportTransfer::send(TransferWatch& watch)
{
    const FormerFiles::Act act(FileVersion::Act::Imported);
    TransferResult result = beginJournal();
    for (const ImportEntry& entry : m_entries) {
        if (!result.isDone())
            break;
        if (!entry.isSent())
            continue;
        result = sendOne(entry);
        if (!watch.isWanted() || (result.isDone() && !watch.step()))
            result = {TransferResult::Unwanted, entry.file->name};
    }
    return result;
}

// A new file is looked for once more: one that could not be read for a while would be lost to the one that
// takes its place. One that arrives but cannot be fetched, though others can, may have been there before too.
TransferResult ImportTransfer::sendOne(const ImportEntry& entry)
{
    const ImportFile& file = *entry.file;
    const bool isNew = entry.state == ImportEntry::New;
    if (!isRobotAtRest())
        return {TransferResult::RobotMoves, file.name};
    if (isNew && fetchOrMiss(scratchCopy(), file.controller) != Fetched::Absent)
        return {TransferResult::Changed, file.name};
    if (FileHash::of(file.staged()) != entry.sentHash)
        return {TransferResult::CopyChanged, file.name};
    m_hasSent = true;
    m_sent.push_back(&entry);
    m_onTheWay = &entry;
    FormerFiles::instance().sawCopy(file.controller, isNew ? QString() : file.kept());
    const TransferResult failed = {TransferResult::SendFailed, file.name};
    if (!lib()->sendFileToCtrl(file.staged(), file.controller))
        return failed;
    const Fetched fetched = fetchOrMiss(scratchCopy(), file.controller);
    if (fetched == Fetched::Absent && isNew)
        m_unreadable = &entry;
    if (fetched != Fetched::Yes || !WholeFile::areSame(scratchCopy(), file.staged()))
        return failed;
    m_onTheWay = nullptr;
    return {};
}

bool ImportTransfer::finish()
{
    const bool isOver = ImportJournal::end(keptDirectory());
    if (isOver) {
        m_sent.clear();
        m_isBegun = false;
    } else {
        qCWarning(fieldbusLog, "the journal of an import that is over could not be removed");
    }
    return isOver;
}

void ImportTransfer::leaveUnfinished()
{
    m_sent.clear();
    m_isBegun = false;
}

// An import before this one that was left unfinished is the unfinished one again. Its journal has the lower
// number; a higher one is of an import that a power failure ended before it sent anything.
void ImportTransfer::endUndone()
{
    m_isBegun = false;
    const ImportJournal other = ImportJournal::read(presentDirectory());
    if (other.state != ImportJournal::Whole || other.number >= m_number)
        finish();
    else if (!DurableFiles::exchange(keptDirectory(), presentDirectory()))
        qCWarning(fieldbusLog, "what an earlier import has kept is not yet back in its place");
}

bool ImportTransfer::putBack()
{
    const FormerFiles::Act act(FileVersion::Act::ImportUndone);
    std::vector<const ImportEntry*> left;
    for (auto entry = m_sent.rbegin(); entry != m_sent.rend(); ++entry) {
        if (*entry == m_unreadable)
            continue;
        const Back back = putBackTried(**entry, *entry == m_onTheWay);
        if (back == Back::Foreign)
            m_savedSince << (*entry)->file->name;
        else if (back == Back::Failed)
            left.push_back(*entry);
    }
    m_sent.assign(left.rbegin(), left.rend());
    if (m_sent.empty())
        endUndone();
    else if (!ImportJournal::write(keptDirectory(), m_number, m_sent))
        qCWarning(fieldbusLog, "the journal of an import names files that were put back");
    return notPutBack().isEmpty();
}

QStringList ImportTransfer::notPutBack() const
{
    QStringList names;
    for (const ImportEntry* entry : m_sent)
        names << entry->file->name;
    if (m_unreadable)
        names << m_unreadable->file->name;
    names.removeDuplicates();
    return names;
}

// All is on the disk before the exchange, which makes it count: a power failure leaves either this import's
// journal with what it has kept, or those of an earlier one that was left unfinished.
TransferResult ImportTransfer::beginJournal()
{
    std::vector<const ImportEntry*> sent;
    for (const ImportEntry& entry : m_entries) {
        if (entry.isSent())
            sent.push_back(&entry);
    }
    const ImportJournal earlier = ImportJournal::read(keptDirectory());
    if (earlier.state == ImportJournal::Unreadable)
        return localFailure(ImportJournal::pathIn(keptDirectory()));
    m_number = earlier.number + 1;
    if (!ImportJournal::write(presentDirectory(), m_number, sent) ||
        !DurableFiles::syncTree(presentDirectory()))
        return localFailure(ImportJournal::pathIn(presentDirectory()));
    if (!DurableFiles::exchange(keptDirectory(), presentDirectory()))
        return localFailure(keptDirectory());
    m_isBegun = true;
    return {};
}

void ImportTransfer::resume(int number)
{
    m_isBegun = m_hasSent = true;
    m_number = number;
    for (const ImportEntry& entry : m_entries)
        m_sent.push_back(&entry);
}
