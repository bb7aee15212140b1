#include "ImportJournal.h"

#include "DurableFiles.h"
#include "WholeFile.h"

#include <QFile>

namespace {

// The lines: which import it is, its files, and that nothing is missing. Nothing at all says that the import
// is over.
constexpr const char* Number = "import ";
constexpr const char* New = "new "; // a file that the controller did not have: hash and name
constexpr const char* Old = "old ";
constexpr const char* End = "end";

} // namespace

QString ImportJournal::pathIn(const QString& directory)
{
    return directory + QStringLiteral("/unfinished");
}

ImportJournal ImportJournal::read(const QString& directory)
{
    ImportJournal journal;
    QByteArray content;
    const bool isRead = WholeFile::read(pathIn(directory), content);
    journal.isUnfinished = QFile::exists(pathIn(directory)) && !(isRead && content.isEmpty());
    for (const QByteArray& line : content.split('\n')) {
        const QByteArray rest = line.mid(line.indexOf(' ') + 1);
        ImportEntry entry;
        if (line.startsWith(Number)) {
            journal.number = rest.toInt();
        } else if (line.startsWith(Old)) {
            entry.state = ImportEntry::Different;
            journal.entries[QString::fromUtf8(rest)] = entry;
        } else if (line.startsWith(New)) {
            const int space = rest.indexOf(' ');
            entry.state = ImportEntry::New;
            entry.sentHash = rest.left(space);
            journal.entries[QString::fromUtf8(rest.mid(space + 1))] = entry;
        }
        journal.isWhole = journal.isWhole || line == End;
    }
    return journal;
}

bool ImportJournal::write(const QString& directory, int number,
                          const std::vector<const ImportEntry*>& entries)
{
    QByteArray lines = Number + QByteArray::number(number) + '\n';
    for (const ImportEntry* entry : entries) {
        lines += entry->state == ImportEntry::New ? New + entry->sentHash + ' ' : QByteArray(Old);
        lines += entry->file->name.toUtf8() + '\n';
    }
    lines += End;
    const QString path = pathIn(directory);
    return WholeFile::replace(path, lines) && DurableFiles::sync(path) && DurableFiles::sync(directory);
}

// Where it cannot be removed, an empty one says the same.
bool ImportJournal::end(const QString& directory)
{
    const QString path = pathIn(directory);
    return (QFile::remove(path) || WholeFile::replace(path, QByteArray())) && DurableFiles::sync(directory);
}
