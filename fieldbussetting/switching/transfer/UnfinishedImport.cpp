#include "UnfinishedImport.h"

#include "DurableFiles.h"
#include "FieldbusSettingLib.h"
#include "FileHash.h"
#include "FileLocations.h"
#include "ImportJournal.h"
#include "Logging.h"
#include "TransferUnderWay.h"

#include <QDir>
#include <QDirIterator>
#include <QFile>
#include <QRegularExpression>
#include <sys/stat.h>

namespace {

// A file that is replaced in one step is first written under its name and six characters more.
void removeTemporaries(const QString& directory)
{
    static const QRegularExpression temporary(
        QStringLiteral("\\.(cfg|cfgx|xml|eds|gsdml|esi)\\.[A-Za-z0-9]{6}$"));
    QDirIterator files(directory, QDir::Files | QDir::Hidden, QDirIterator::Subdirectories);
    while (files.hasNext()) {
        const QString path = files.next();
        if (temporary.match(path).hasMatch())
            QFile::remove(path);
    }
}

} // namespace

bool UnfinishedImport::exists()
{
    // Asked on every idle tick, so without an allocation: an empty journal says that nothing is unfinished.
    static const QByteArray journal = QFile::encodeName(ImportJournal::pathIn(keptDirectory()));
    struct stat status = {};
    return !TransferUnderWay::current() && ::stat(journal.constData(), &status) == 0 &&
           (!S_ISREG(status.st_mode) || status.st_size > 0);
}

UnfinishedImport UnfinishedImport::find()
{
    DurableFiles::repairExchange(keptDirectory(), presentDirectory());
    const ImportJournal journal = ImportJournal::read(keptDirectory());
    UnfinishedImport unfinished;
    unfinished.isReadable = journal.state != ImportJournal::Unreadable;
    unfinished.number = journal.number;
    if (journal.state == ImportJournal::None || !unfinished.isReadable)
        return unfinished;
    const bool isWhole = journal.state == ImportJournal::Whole;
    if (!isWhole)
        qCWarning(fieldbusLog, "the journal of an import is damaged: all that was kept is to be put back");
    for (const ImportFile& file : importSet()) {
        ImportEntry entry = journal.entries.value(file.name);
        entry.file = &file;
        if (!isWhole && !entry.isSent() && QFile::exists(file.kept()))
            entry.state = ImportEntry::Different;
        // What was sent is what was copied, as far as anybody knows.
        if (entry.sentHash.isEmpty())
            entry.sentHash = FileHash::of(file.staged());
        if (entry.isSent())
            unfinished.entries.push_back(entry);
    }
    if (unfinished.entries.empty()) // nothing is left that could be put back
        ImportJournal::end(keptDirectory());
    return unfinished;
}

void UnfinishedImport::clearLeftOvers()
{
    if (TransferUnderWay::current())
        return;
    const TransferUnderWay alone(nullptr);
    if (!alone.isAlone())
        return; // they are another pendant's
    DurableFiles::repairExchange(keptDirectory(), presentDirectory());
    for (const char* name : FileLocations::TemplateCopy::All)
        QFile::remove(FileLocations::workingDirectory() + QLatin1String(name));
    removeTemporaries(FileLocations::workingDirectory());
    removeTemporaries(QFileInfo(FileLocations::of(ConfigFile::BusSwitch).local).path());
    removeTemporaries(QFileInfo(importDirectory()).path());
    if (ImportJournal::isThere(keptDirectory()))
        return; // its copies are what it sent
    for (const QString& directory : {importDirectory(), presentDirectory()}) {
        if (!ImportJournal::isThere(directory))
            FieldbusSettingLib::getInstance()->deleteDir(directory, QString());
    }
}
