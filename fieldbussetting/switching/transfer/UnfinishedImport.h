#ifndef UNFINISHEDIMPORT_H
#define UNFINISHEDIMPORT_H

#include "ImportSet.h"

/// An import that was neither finished nor undone, as its journal tells.
struct UnfinishedImport
{
    bool isReadable = true; ///< false: the disk does not give the journal now
    int number = 0;
    /// Its files; all that were kept when the journal is damaged. None when there is no such import.
    std::vector<ImportEntry> entries;

    /// Whether there is one, apart from an import that is under way. Only looks at the disk.
    static bool exists();
    static UnfinishedImport find();
    /// Removes what a pendant that was ended in the middle has left: temporary files, and directories that no
    /// unfinished import needs. To be called when the application opens.
    static void clearLeftOvers();
};

#endif
