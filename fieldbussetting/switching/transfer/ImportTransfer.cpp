#include "ImportTransfer.h"

#include "ControllerFiles.h"
#include "DurableFiles.h"
#include "FieldbusSettingLib.h"
#include "ImportJournal.h"
#include "Logging.h"
#include "SysSettingApi.h"
#include "WholeFile.h"

#include <QCryptographicHash>
#include <QFile>

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
    Foreign ///< a new file that is not what was sent any more: it is somebody else's
};

FieldbusSettingLib* lib()
{
    return FieldbusSettingLib::getInstance();
}

// Empty when it cannot be read.
QByteArray hashOf(const QString& path)
{
    QByteArray content;
    return WholeFile::read(path, content)
               ? QCryptographicHash::hash(content, QCryptographicHash::Sha1).toHex()
               : QByteArray();
}

// Only what can be fetched is removed: it would have been fetched before the import, had it been there.
Back removeNew(const ImportEntry& entry, bool onlyWhatWasSent)
{
    const QString& controller = entry.file->controller;
    const Fetched fetched = fetchOrMiss(scratchCopy(), controller);
    if (fetched == Fetched::Absent)
        return Back::Done;
    if (fetched != Fetched::Yes)
        return Back::Failed;
    if (onlyWhatWasSent) {
        const QByteArray hash = hashOf(scratchCopy());
        if (hash != entry.sentHash)
            return hash.isEmpty() ? Back::Failed : Back::Foreign;
    }
    return SysSettingApi::removeRemoteFile(controller) ? Back::Done : Back::Failed;
}

Back putBackOne(const ImportEntry& entry, bool resumed)
{
    const ImportFile& file = *entry.file;
    if (entry.state == ImportEntry::New)
        return removeNew(entry, resumed);
    return lib()->sendFileToCtrl(file.kept(), file.controller) && isThere(file.controller, file.kept())
               ? Back::Done
               : Back::Failed;
}

Back putBackTried(const ImportEntry& entry, bool resumed)
{
    Back back = putBackOne(entry, resumed);
    for (int attempt = 1; attempt < PutBackTries && back == Back::Failed; ++attempt) {
        SysSettingApi::delay_MSec(BetweenTriesMs);
        back = putBackOne(entry, resumed);
    }
    return back;
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
    if (!m_sent.empty() && !putBack())
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
        entry.state = fetched == Fetched::Absent                          ? ImportEntry::New
                      : WholeFile::areSame(file.present(), file.staged()) ? ImportEntry::Same
                                                                          : ImportEntry::Different;
        if (!watch.step())
            return {TransferResult::Unwanted, {}};
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
    TransferResult result = beginJournal();
    if (!result.isDone())
        return result;
    for (const ImportEntry& entry : m_entries) {
        if (!entry.isSent())
            continue;
        m_sent.push_back(&entry);
        if (!sendOne(entry))
            return {watch.isWanted() ? TransferResult::SendFailed : TransferResult::Unwanted,
                    entry.file->name};
        if (!watch.step())
            return {TransferResult::Unwanted, {}};
    }
    return {};
}

// A new file that arrives but cannot be fetched, though others can, may have been there before the import.
bool ImportTransfer::sendOne(const ImportEntry& entry)
{
    const ImportFile& file = *entry.file;
    if (!lib()->sendFileToCtrl(file.staged(), file.controller))
        return false;
    const Fetched fetched = fetchOrMiss(scratchCopy(), file.controller);
    if (fetched == Fetched::Absent && entry.state == ImportEntry::New)
        m_unreadable = &entry;
    return fetched == Fetched::Yes && WholeFile::areSame(scratchCopy(), file.staged());
}

void ImportTransfer::finish()
{
    m_sent.clear();
    if (!ImportJournal::end(keptDirectory()))
        qCWarning(fieldbusLog, "the journal of an import that is over could not be removed");
}

// An import before this one that was left unfinished is the unfinished one again. Its journal has the lower
// number; a higher one is of an import that a power failure ended before it sent anything.
void ImportTransfer::endUndone()
{
    const ImportJournal other = ImportJournal::read(presentDirectory());
    if (!other.isWhole || other.number >= m_number)
        finish();
    else if (!DurableFiles::exchange(keptDirectory(), presentDirectory()))
        qCWarning(fieldbusLog, "what an earlier import has kept is not yet back in its place");
}

bool ImportTransfer::putBack()
{
    std::vector<const ImportEntry*> left;
    for (auto entry = m_sent.rbegin(); entry != m_sent.rend(); ++entry) {
        const Back back = *entry == m_unreadable ? Back::Foreign : putBackTried(**entry, m_resumed);
        if (back == Back::Foreign)
            m_remaining << (*entry)->file->name;
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
    return names + m_remaining;
}

// All is on the disk before the exchange, which makes it count: a power failure leaves either this import's
// journal with what it has kept, or those of an earlier one that was left unfinished.
TransferResult ImportTransfer::beginJournal()
{
    std::vector<const ImportEntry*> sent;
    for (ImportEntry& entry : m_entries) {
        if (entry.state == ImportEntry::New) {
            entry.sentHash = hashOf(entry.file->staged());
            if (entry.sentHash.isEmpty())
                return localFailure(entry.file->staged());
        }
        if (entry.isSent())
            sent.push_back(&entry);
    }
    m_number = ImportJournal::read(keptDirectory()).number + 1;
    if (!ImportJournal::write(presentDirectory(), m_number, sent) ||
        !DurableFiles::syncTree(presentDirectory()))
        return localFailure(ImportJournal::pathIn(presentDirectory()));
    if (!DurableFiles::exchange(keptDirectory(), presentDirectory()))
        return localFailure(keptDirectory());
    return {};
}

std::vector<ImportEntry> ImportTransfer::unfinished()
{
    DurableFiles::repairExchange(keptDirectory(), presentDirectory());
    const ImportJournal journal = ImportJournal::read(keptDirectory());
    std::vector<ImportEntry> entries;
    if (!journal.isUnfinished)
        return entries;
    if (!journal.isWhole)
        qCWarning(fieldbusLog, "the journal of an import is damaged: all that was kept is to be put back");
    for (const ImportFile& file : importSet()) {
        ImportEntry entry = journal.entries.value(file.name);
        entry.file = &file;
        if (!journal.isWhole && !entry.isSent() && QFile::exists(file.kept()))
            entry.state = ImportEntry::Different;
        if (entry.isSent())
            entries.push_back(entry);
    }
    return entries;
}

void ImportTransfer::resume()
{
    m_resumed = true;
    m_number = ImportJournal::read(keptDirectory()).number;
    for (const ImportEntry& entry : m_entries)
        m_sent.push_back(&entry);
}
