#include "ImportTransfer.h"

#include "DriveFiles.h"
#include "DurableFiles.h"
#include "FieldbusSettingLib.h"
#include "FileLocations.h"
#include "Logging.h"
#include "SysSettingApi.h"
#include "WholeFile.h"

#include <QCryptographicHash>
#include <QFile>
#include <QMap>
#include <QRandomGenerator>
#include <QVector>

namespace {

constexpr int PutBackTries = 3;
constexpr unsigned BetweenTriesMs = 100;

enum class Fetched { Yes, Absent, Failed, NoRoom };
enum class Back {
    Done,
    Failed,
    Foreign ///< a new file that is not what was sent any more: it is somebody else's
};

FieldbusSettingLib* lib()
{
    return FieldbusSettingLib::getInstance();
}

// The lines of a journal: which import it is, its files, and that nothing is missing. Nothing at all says
// that the import is over.
constexpr const char* JournalNumber = "import ";
constexpr const char* JournalNew = "new "; // a file that the controller did not have: hash and name
constexpr const char* JournalOld = "old ";
constexpr const char* JournalEnd = "end";

QString journalIn(const QString& directory)
{
    return directory + QStringLiteral("/unfinished");
}

struct Journal
{
    bool isUnfinished = false;
    bool isWhole = false;
    int number = 0;
    QMap<QString, ImportEntry> entries; // by name, without the file
};

Journal readJournal(const QString& directory)
{
    Journal journal;
    QByteArray content;
    const bool isRead = WholeFile::read(journalIn(directory), content);
    journal.isUnfinished = QFile::exists(journalIn(directory)) && !(isRead && content.isEmpty());
    for (const QByteArray& line : content.split('\n')) {
        const QByteArray rest = line.mid(line.indexOf(' ') + 1);
        ImportEntry entry;
        if (line.startsWith(JournalNumber)) {
            journal.number = rest.toInt();
        } else if (line.startsWith(JournalOld)) {
            entry.state = ImportEntry::Different;
            journal.entries[QString::fromUtf8(rest)] = entry;
        } else if (line.startsWith(JournalNew)) {
            const int space = rest.indexOf(' ');
            entry.state = ImportEntry::New;
            entry.sentHash = rest.left(space);
            journal.entries[QString::fromUtf8(rest.mid(space + 1))] = entry;
        }
        journal.isWhole = journal.isWhole || line == JournalEnd;
    }
    return journal;
}

// Empty when it cannot be read.
QByteArray hashOf(const QString& path)
{
    QByteArray content;
    return WholeFile::read(path, content)
               ? QCryptographicHash::hash(content, QCryptographicHash::Sha1).toHex()
               : QByteArray();
}

// What is fetched only to be looked at.
QString lookedAt()
{
    return importDirectory() + QStringLiteral("/looked-at");
}

// Whether the largest file could be written to `path`. With bytes that a compressing disk cannot make less.
bool hasRoomAt(const QString& path)
{
    QVector<quint32> block(64 * 1024 / sizeof(quint32));
    QRandomGenerator::global()->fillRange(block.data(), block.size());
    const qint64 size = block.size() * qint64(sizeof(quint32));
    QFile probe(path + QStringLiteral(".probe"));
    bool hasRoom = probe.open(QIODevice::WriteOnly | QIODevice::Unbuffered);
    for (qint64 written = 0; hasRoom && written < LargestImportFile; written += size)
        hasRoom = probe.write(reinterpret_cast<const char*>(block.constData()), size) == size;
    probe.remove();
    return hasRoom;
}

// A file that the controller most likely has, to see whether it answers. Each may be missing for itself.
bool isAnyOtherFetched(const QString& controller)
{
    const auto isFetched = [&controller](const char* other) {
        return controller != QLatin1String(other) && lib()->getFileFromCtrl(lookedAt(), QLatin1String(other));
    };
    return isFetched(FileLocations::FieldbusConfigXml) || isFetched(FileLocations::FieldbusXml);
}

// The controller does not tell a file that it does not have from one that it cannot give now, or that the
// pendant cannot write. A file counts as absent when two series of attempts fail and another file comes
// between them, with room for this one: taken for absent by mistake, it would be removed when the import is
// undone.
Fetched fetchOrMiss(const QString& path, const QString& controller)
{
    if (lib()->getFileFromCtrl(path, controller))
        return Fetched::Yes;
    if (!hasRoomAt(path))
        return Fetched::NoRoom;
    if (!isAnyOtherFetched(controller))
        return Fetched::Failed;
    return lib()->getFileFromCtrl(path, controller) ? Fetched::Yes : Fetched::Absent;
}

bool isOnController(const QString& expected, const QString& controller)
{
    return lib()->getFileFromCtrl(lookedAt(), controller) && DriveFiles::areSame(lookedAt(), expected);
}

// Only what can be fetched is removed: it would have been fetched before the import, had it been there.
Back removeNew(const ImportEntry& entry, bool onlyWhatWasSent)
{
    const QString& controller = entry.file->controller;
    const Fetched fetched = fetchOrMiss(lookedAt(), controller);
    if (fetched == Fetched::Absent)
        return Back::Done;
    if (fetched != Fetched::Yes)
        return Back::Failed;
    if (onlyWhatWasSent) {
        const QByteArray hash = hashOf(lookedAt());
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
    return lib()->sendFileToCtrl(file.kept(), file.controller) && isOnController(file.kept(), file.controller)
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
        if (fetched == Fetched::NoRoom)
            return localFailure(lookedAt());
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
    const QString journal = journalIn(keptDirectory());
    const bool isGone = QFile::remove(journal) || WholeFile::replace(journal, QByteArray());
    if (!isGone || !DurableFiles::sync(keptDirectory()))
        qCWarning(fieldbusLog) << "the journal of an import that is over could not be removed:" << journal;
}

// An import before this one that was left unfinished is the unfinished one again. Its journal has the lower
// number; a higher one is of an import that a power failure ended before it sent anything.
void ImportTransfer::endUndone()
{
    const Journal other = readJournal(presentDirectory());
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
    else if (!writeJournal(keptDirectory(), m_sent))
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
    m_number = readJournal(keptDirectory()).number + 1;
    if (!writeJournal(presentDirectory(), sent) || !DurableFiles::syncTree(presentDirectory()))
        return localFailure(journalIn(presentDirectory()));
    if (!DurableFiles::exchange(keptDirectory(), presentDirectory()))
        return localFailure(keptDirectory());
    return {};
}

bool ImportTransfer::writeJournal(const QString& directory,
                                  const std::vector<const ImportEntry*>& entries) const
{
    QByteArray lines = JournalNumber + QByteArray::number(m_number) + '\n';
    for (const ImportEntry* entry : entries) {
        lines +=
            entry->state == ImportEntry::New ? JournalNew + entry->sentHash + ' ' : QByteArray(JournalOld);
        lines += entry->file->name.toUtf8() + '\n';
    }
    lines += JournalEnd;
    const QString journal = journalIn(directory);
    return WholeFile::replace(journal, lines) && DurableFiles::sync(journal) && DurableFiles::sync(directory);
}

std::vector<ImportEntry> ImportTransfer::unfinished()
{
    DurableFiles::repairExchange(keptDirectory(), presentDirectory());
    const Journal journal = readJournal(keptDirectory());
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
    m_number = readJournal(keptDirectory()).number;
    for (const ImportEntry& entry : m_entries)
        m_sent.push_back(&entry);
}
