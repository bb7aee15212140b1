#include "ImportTransfer.h"

#include "DataAccess.h"
#include "DriveFiles.h"
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
    return keptDirectory() + QStringLiteral("/looked-at");
}

// The controller does not tell a file that it does not have from one that it cannot give now. A file counts
// as absent when two series of attempts fail and another file comes between them: taken for absent by
// mistake, it would be removed when the import is undone.
Fetched fetchOrMiss(const QString& path, const QString& controller)
{
    if (lib()->getFileFromCtrl(path, controller))
        return Fetched::Yes;
    if (!lib()->getFileFromCtrl(lookedAt(), QLatin1String(FileLocations::FieldbusXml)))
        return Fetched::Failed;
    return lib()->getFileFromCtrl(path, controller) ? Fetched::Yes : Fetched::Absent;
}

bool isOnController(const QString& expected, const QString& controller)
{
    return lib()->getFileFromCtrl(lookedAt(), controller) && DriveFiles::areSame(lookedAt(), expected);
}

bool isAbsent(const QString& controller)
{
    return !DataAccess::GetFileFromController2TPU(controller, lookedAt(), false);
}

bool putBackOne(const ImportEntry& entry)
{
    const ImportFile& file = *entry.file;
    if (entry.state == ImportEntry::New)
        return SysSettingApi::removeRemoteFile(file.controller) || isAbsent(file.controller);
    return lib()->sendFileToCtrl(file.kept(), file.controller) &&
           isOnController(file.kept(), file.controller);
}

} // namespace

ImportTransfer::ImportTransfer(std::vector<ImportEntry>& entries)
    : m_entries(entries)
{
}

ImportTransfer::~ImportTransfer()
{
    if (!m_sent.empty() && !putBack())
        qCWarning(fieldbusLog) << "import undone in part, still imported:" << notPutBack();
}

TransferResult ImportTransfer::keep(TransferWatch& watch)
{
    if (!prepareImportDirectory(keptDirectory()))
        return {TransferResult::FetchFailed, keptDirectory()};
    for (ImportEntry& entry : m_entries) {
        if (!entry.isBrought())
            continue;
        const ImportFile& file = *entry.file;
        const Fetched fetched = fetchOrMiss(file.kept(), file.controller);
        if (fetched == Fetched::Failed)
            return {watch.isWanted() ? TransferResult::FetchFailed : TransferResult::Unwanted, file.name};
        entry.state = fetched == Fetched::Absent                        ? ImportEntry::New
                      : DriveFiles::areSame(file.kept(), file.staged()) ? ImportEntry::Same
                                                                        : ImportEntry::Different;
        if (!watch.step())
            return {TransferResult::Unwanted, {}};
    }
    return {};
}

TransferResult ImportTransfer::confirmKept(TransferWatch& watch)
{
    for (const ImportEntry& entry : m_entries) {
        if (!entry.isBrought())
            continue;
        const ImportFile& file = *entry.file;
        const bool unchanged = entry.state == ImportEntry::New ? isAbsent(file.controller)
                                                               : isOnController(file.kept(), file.controller);
        if (!unchanged)
            return {watch.isWanted() ? TransferResult::Changed : TransferResult::Unwanted, file.name};
        if (!watch.step())
            return {TransferResult::Unwanted, {}};
    }
    return {};
}

TransferResult ImportTransfer::send(TransferWatch& watch)
{
    if (!writeJournal())
        return {TransferResult::SendFailed, journal()};
    for (const ImportEntry& entry : m_entries) {
        if (!entry.isSent())
            continue;
        const ImportFile& file = *entry.file;
        m_sent.push_back(&entry);
        if (!lib()->sendFileToCtrl(file.staged(), file.controller) ||
            !isOnController(file.staged(), file.controller))
            return {watch.isWanted() ? TransferResult::SendFailed : TransferResult::Unwanted, file.name};
        if (!watch.step())
            return {TransferResult::Unwanted, {}};
    }
    return {};
}

void ImportTransfer::finish()
{
    m_sent.clear();
    QFile::remove(journal());
}

bool ImportTransfer::putBack()
{
    std::vector<const ImportEntry*> left;
    for (auto entry = m_sent.rbegin(); entry != m_sent.rend(); ++entry) {
        bool isBack = putBackOne(**entry);
        for (int attempt = 1; attempt < PutBackTries && !isBack; ++attempt) {
            SysSettingApi::delay_MSec(BetweenTriesMs);
            isBack = putBackOne(**entry);
        }
        if (!isBack)
            left.push_back(*entry);
    }
    m_sent.assign(left.rbegin(), left.rend());
    if (m_sent.empty())
        finish();
    return m_sent.empty();
}

QStringList ImportTransfer::notPutBack() const
{
    QStringList names;
    for (const ImportEntry* entry : m_sent)
        names << entry->file->name;
    return names;
}

bool ImportTransfer::writeJournal() const
{
    QByteArray lines;
    for (const ImportEntry& entry : m_entries) {
        if (entry.isSent())
            lines += (entry.state == ImportEntry::New ? JournalNew : JournalOld) + entry.file->name.toUtf8() +
                     '\n';
    }
    return WholeFile::replace(journal(), lines);
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
