#ifndef IMPORTJOURNAL_H
#define IMPORTJOURNAL_H

#include "ImportSet.h"

#include <QMap>

/// What an import replaces, on the pendant's disk beside the files that are to be put back: it outlasts a
/// power failure.
struct ImportJournal
{
    enum State {
        None,       ///< there is no journal, or it says that the import is over
        Unreadable, ///< it is there, but the disk does not give it
        Damaged,    ///< something of it is missing
        Whole
    };
    State state = None;
    int number = 0; ///< of the import; a later one has a higher number. 0 without a journal
    QMap<QString, ImportEntry> entries; ///< by name; the file of an entry is not set

    /// Reads it; several times when the disk does not give it at once.
    static ImportJournal read(const QString& directory);
    /// Whether there is one that does not say that the import is over. Reads nothing.
    static bool isThere(const QString& directory);
    /// Writes a journal through to the disk.
    static bool write(const QString& directory, int number, const std::vector<const ImportEntry*>& entries);
    /// Says that the import is over, through to the disk.
    static bool end(const QString& directory);
    static QString pathIn(const QString& directory);
};

#endif
