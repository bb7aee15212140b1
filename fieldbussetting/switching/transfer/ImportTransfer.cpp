#include "ImportTransfer.h"

#include "DriveFiles.h"
#include "DurableFiles.h"
#include "FieldbusSettingLib.h"
#include "FileLocations.h"
#include "Logging.h"
#include "SysSettingApi.h"
#include "WholeFile.h"

#include <QFile>

namespace {

constexpr int PutBackTries = 3;
constexpr unsigned BetweenTriesMs = 100;

enum class Fetched { Yes, Absent, Failed };

FieldbusSettingLib* lib()
{
    return FieldbusSettingLib::getInstance();
}

QString journal()
{
    return keptDirectory() + QStringLiteral("/unfinished");
}

constexpr const char* JournalNew = "new "; // before a file that the controller did not have
constexpr const char* JournalOld = "old ";

// What is fetched only to be looked at.
QString lookedAt()
{
    return importDirectory() + QStringLiteral("/looked-at");
}

// The controller does not tell a file that it does not have from one that it cannot give now. A file counts
// as absent when two series of attempts fail and another file comes between them: taken for absent by
// mistake, it would be removed when the import is undone.
Fetched fetchOrMiss(const QString& path, const QString& controller)
{
    if (lib()->getFileFromCtrl(path, controller))
        return Fetched::Yes;
    const QLatin1String mapping(FileLocations::FieldbusConfigXml);
    const QLatin1String other = controller == mapping ? QLatin1String(FileLocations::FieldbusXml) : mapping;
    if (!lib()->getFileFromCtrl(lookedAt(), other))
        return Fetched::Failed;
    return lib()->getFileFromCtrl(path, controller) ? Fetched::Yes : Fetched::Absent;
}

bool isOnController(const QString& expected, const QString& controller)
{
    return lib()->getFileFromCtrl(lookedAt(), controller) && DriveFiles::areSame(lookedAt(), expected);
}

// Only what can be fetched is removed: it would have been fetched before the import, had it been there.
bool removeNew(const QString& controller)
{
    const Fetched fetched = fetchOrMiss(lookedAt(), controller);
    return fetched == Fetched::Absent ||
           (fetched == Fetched::Yes && SysSettingApi::removeRemoteFile(controller));
}

bool putBackOne(const ImportEntry& entry)
{
    const ImportFile& file = *entry.file;
    if (entry.state == ImportEntry::New)
        return removeNew(file.controller);
    return lib()->sendFileToCtrl(file.kept(), file.controller) &&
           isOnController(file.kept(), file.controller);
}

bool putBackTried(const ImportEntry& entry)
{
    bool isBack = putBackOne(entry);
    for (int attempt = 1; attempt < PutBackTries && !isBack; ++attempt) {
        SysSettingApi::delay_MSec(BetweenTriesMs);
        isBack = putBackOne(entry);
    }
    return isBack;
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
        if (fetched == Fetched::Failed)
            return {watch.isWanted() ? TransferResult::FetchFailed : TransferResult::Unwanted, file.name};
        entry.state = fetched == Fetched::Absent                           ? ImportEntry::New
                      : DriveFiles::areSame(file.present(), file.staged()) ? ImportEntry::Same
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
        const Fetched fetched = fetchOrMiss(lookedAt(), file.controller);
        const bool isKnown = fetched == Fetched::Yes || (isNew && fetched == Fetched::Absent);
        const bool isUnchanged =
            isNew ? fetched == Fetched::Absent : isKnown && DriveFiles::areSame(lookedAt(), file.present());
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
    const Fetched fetched = fetchOrMiss(lookedAt(), file.controller);
    if (fetched == Fetched::Absent && entry.state == ImportEntry::New)
        m_unreadable = &entry;
    return fetched == Fetched::Yes && DriveFiles::areSame(lookedAt(), file.staged());
}

// Without the journal nothing is unfinished. Where it cannot be removed, an empty one says the same.
void ImportTransfer::finish()
{
    m_sent.clear();
    const bool isGone = QFile::remove(journal()) || WholeFile::replace(journal(), QByteArray());
    if (!isGone || !DurableFiles::syncNames(keptDirectory()))
        qCWarning(fieldbusLog) << "the journal of an import that is over could not be removed:" << journal();
}

bool ImportTransfer::putBack()
{
    std::vector<const ImportEntry*> left;
    for (auto entry = m_sent.rbegin(); entry != m_sent.rend(); ++entry) {
        if (*entry == m_unreadable)
            m_remaining << m_unreadable->file->name;
        else if (!putBackTried(**entry))
            left.push_back(*entry);
    }
    m_sent.assign(left.rbegin(), left.rend());
    if (m_sent.empty())
        finish();
    else if (!writeJournal(m_sent))
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

// The kept files are on the disk before the journal that promises them. An earlier import that was left
// unfinished can still be undone when this one cannot begin.
TransferResult ImportTransfer::beginJournal()
{
    std::vector<const ImportEntry*> sent;
    for (const ImportEntry& entry : m_entries) {
        if (entry.isSent())
            sent.push_back(&entry);
    }
    if (!DurableFiles::exchange(keptDirectory(), presentDirectory()))
        return localFailure(keptDirectory());
    if (DurableFiles::syncTree(keptDirectory()) && writeJournal(sent))
        return {};
    QFile::remove(journal());
    DurableFiles::exchange(keptDirectory(), presentDirectory());
    return localFailure(journal());
}

bool ImportTransfer::writeJournal(const std::vector<const ImportEntry*>& entries)
{
    QByteArray lines;
    for (const ImportEntry* entry : entries)
        lines +=
            (entry->state == ImportEntry::New ? JournalNew : JournalOld) + entry->file->name.toUtf8() + '\n';
    return WholeFile::replace(journal(), lines) && DurableFiles::syncNames(keptDirectory());
}

std::vector<ImportEntry> ImportTransfer::unfinished()
{
    QByteArray lines;
    std::vector<ImportEntry> entries;
    if (!QFile::exists(journal()) || !WholeFile::read(journal(), lines))
        return entries;
    for (const ImportFile& file : importSet()) {
        const QByteArray name = file.name.toUtf8() + '\n';
        ImportEntry entry;
        entry.file = &file;
        entry.state = lines.contains(JournalNew + name)   ? ImportEntry::New
                      : lines.contains(JournalOld + name) ? ImportEntry::Different
                                                          : ImportEntry::Missing;
        if (entry.isSent())
            entries.push_back(entry);
    }
    return entries;
}

void ImportTransfer::resume()
{
    for (const ImportEntry& entry : m_entries)
        m_sent.push_back(&entry);
}
