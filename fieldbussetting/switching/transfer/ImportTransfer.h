#ifndef IMPORTTRANSFER_H
#define IMPORTTRANSFER_H

#include "ImportSet.h"

#include <QStringList>

/// Replaces files of the controller by those of the import directory, all of them or none: what was sent is
/// put back when a later file fails, and also when this object goes before `finish()`. It knows no page, so
/// that it ends its work when the page that began is closed in the middle.
///
/// A journal beside the kept files names what is being replaced, from before the first file is sent until the
/// import is finished or undone. It survives the pendant: what it names can be put back later. An import that
/// begins while an earlier one is unfinished holds that one's directory until it is finished; when it is
/// undone instead, the earlier one is the unfinished one again.
///
/// Only what the import wrote is put back. A file of the controller that is neither what was sent nor the
/// former one was saved by somebody since, or is another robot's: it stays.
class ImportTransfer
{
public:
    /// `entries` outlive the transfer.
    explicit ImportTransfer(std::vector<ImportEntry>& entries);
    ~ImportTransfer();
    ImportTransfer(const ImportTransfer&) = delete;
    ImportTransfer& operator=(const ImportTransfer&) = delete;

    /// Fetches the controller's present files, and says in the entries what would change. What an earlier
    /// import has kept stays.
    TransferResult fetchPresent(TransferWatch& watch);
    /// Compares again what was changed in the copies, and remembers what is to be sent: nothing else will be.
    TransferResult seal();
    /// Fetches the present files once more: whether they are what the operator was shown.
    TransferResult confirmPresent(TransferWatch& watch);
    /// Keeps the present files, sends what would change, and reads back what arrived. Nothing was sent when
    /// it ends with `LocalFailed`: what is to be put back could not be written to the disk.
    TransferResult send(TransferWatch& watch);
    /// The files that were sent stay. False when that could not be written to the disk: they are still to be
    /// put back.
    bool finish();
    /// What was sent stays for now, and the journal too, so that it can be put back later.
    void leaveUnfinished();
    /// Whether its journal stands for what is neither finished nor put back.
    bool isBegun() const { return m_isBegun; }
    /// Whether any file may have arrived, also when it was put back since.
    bool hasSent() const { return m_hasSent; }
    /// Puts the former files back, the last one first. False when some could not be; may be tried again while
    /// `isBegun()`.
    bool putBack();
    /// Names of the files that are not put back, also of one that never will be: whether the controller had
    /// it before cannot be told.
    QStringList notPutBack() const;
    /// Names of the files that stay as somebody else has saved them since.
    QStringList savedSince() const { return m_savedSince; }

    /// Takes the entries, which are those of an unfinished import, as sent, so that they can be put back.
    void resume(int number);

private:
    TransferResult beginJournal();
    TransferResult sendOne(const ImportEntry& entry);
    void endUndone();

    std::vector<ImportEntry>& m_entries;
    std::vector<const ImportEntry*> m_sent;  ///< the one that failed on the way too: it may have arrived
    const ImportEntry* m_onTheWay = nullptr; ///< may have arrived as anything
    const ImportEntry* m_unreadable = nullptr;
    bool m_isBegun = false;
    bool m_hasSent = false;
    int m_number = 0; ///< of the journal: higher than that of an import that was left unfinished before
    QStringList m_savedSince;
};

#endif
