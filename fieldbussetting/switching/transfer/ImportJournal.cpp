#include "ImportJournal.h"

#include "DurableFiles.h"
#include "WholeFile.h"

#include <QFileInfo>
#include <QThread>

namespace {

// The lines: which import it is, its files, and that nothing is missing. Nothing at all says that the import
// is over.
constexpr const char* Number = "import ";
constexpr const char* New = "new "; // a file that the controller did not have: hash and name
constexpr const char* Old = "old "; // one that it had: the same
constexpr const char* End = "end";

constexpr int ReadTries = 3;
constexpr unsigned long BetweenTriesMs = 50;

// A journal of an earlier release has no hash for a replaced file.
constexpr int HashLength = 40;

ImportEntry entryOf(const QByteArray& line, ImportEntry::State state, QString& name)
{
    ImportEntry entry;
    entry.state = state;
    const QByteArray rest = line.mid(line.indexOf(' ') + 1);
    const bool hasHash = rest.indexOf(' ') == HashLength;
    if (hasHash)
        entry.sentHash = rest.left(HashLength);
    name = QString::fromUtf8(hasHash ? rest.mid(HashLength + 1) : rest);
    return entry;
}

void parse(const QByteArray& content, ImportJournal& journal)
{
    journal.state = ImportJournal::Damaged;
    for (const QByteArray& line : content.split('\n')) {
        QString name;
        if (line.startsWith(Number)) {
            journal.number = line.mid(int(qstrlen(Number))).toInt();
        } else if (line.startsWith(Old) || line.startsWith(New)) {
            const ImportEntry entry =
                entryOf(line, line.startsWith(New) ? ImportEntry::New : ImportEntry::Different, name);
            journal.entries[name] = entry;
        } else if (line == End) {
            journal.state = ImportJournal::Whole;
        }
    }
}

} // namespace

QString ImportJournal::pathIn(const QString& directory)
{
    return directory + QStringLiteral("/unfinished");
}

bool ImportJournal::isThere(const QString& directory)
{
    const QFileInfo file(pathIn(directory));
    return file.exists() && (!file.isFile() || file.size() > 0);
}

// One read that fails says nothing about the journal: taken for a damaged one it would be given up.
ImportJournal ImportJournal::read(const QString& directory)
{
    ImportJournal journal;
    QByteArray content;
    for (int attempt = 0; attempt < ReadTries && isThere(directory); ++attempt) {
        if (WholeFile::read(pathIn(directory), content)) {
            if (!content.isEmpty())
                parse(content, journal);
            return journal;
        }
        journal.state = Unreadable;
        QThread::msleep(BetweenTriesMs);
    }
    return journal;
}

bool ImportJournal::write(const QString& directory, int number,
                          const std::vector<const ImportEntry*>& entries)
{
    QByteArray lines = Number + QByteArray::number(number) + '\n';
    for (const ImportEntry* entry : entries)
        lines += (entry->state == ImportEntry::New ? New : Old) + entry->sentHash + ' ' +
                 entry->file->name.toUtf8() + '\n';
    lines += End;
    const QString path = pathIn(directory);
    return !QFileInfo(path).isSymLink() && WholeFile::replace(path, lines) && DurableFiles::sync(path) &&
           DurableFiles::sync(directory);
}

// Where it cannot be removed, an empty one says the same.
bool ImportJournal::end(const QString& directory)
{
    const QString path = pathIn(directory);
    return (!QFile::exists(path) || QFile::remove(path) || WholeFile::replace(path, QByteArray())) &&
           DurableFiles::sync(directory);
}
