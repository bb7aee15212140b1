#ifndef BUSTRANSFERPAGE_H
#define BUSTRANSFERPAGE_H

#include "PageBase.h"

class ImportTransfer;
class ProgressDialog;
struct ExportFolder;
struct ImportEntry;
struct ImportedRoles;
struct RoleConditions;
struct TransferResult;

/// The side of the bus switch page that carries the whole bus configuration to a USB drive and back: what the
/// operator is asked and told. The page's form has the buttons "btn_export" and "btn_import".
class BusTransferPage : public PageBase
{
    Q_OBJECT

protected:
    using PageBase::PageBase;

    /// Whether a save is under way; nothing is carried meanwhile.
    virtual bool isSaving() const = 0;
    virtual RoleConditions roleConditions() const = 0;

    /// Whether one of the two buttons is at work, from its first box to its last, on this page or on one that
    /// was closed meanwhile. Input is blocked for fingers only: a key can press a button that has the focus.
    static bool isTransferring();

private slots:
    void on_btn_import_clicked();
    void on_btn_export_clicked();

private:
    /// Runs one transfer at a time. The page may be gone afterwards.
    void transferOnce(void (BusTransferPage::*transfer)());
    void exportToDrive();
    void importFromDrive();

    ProgressDialog* progressDialog();
    void importFolder(const QString& drive, const ExportFolder& folder);
    // False: it ended, with its message, and the page may be gone.
    bool prepareImport(const QString& drive, const ExportFolder& folder, ImportTransfer& transfer,
                       std::vector<ImportEntry>& entries, ImportedRoles& roles);
    bool isImportWanted(const ExportFolder& folder, const std::vector<ImportEntry>& entries,
                        const ImportedRoles& roles);
    TransferResult sendImport(ImportTransfer& transfer, int steps);
    void finishImport();
    void failImport(const TransferResult& result, ImportTransfer& transfer);
    QString notPutBackText(const ImportTransfer& transfer) const;
    void offerPutBack(ImportTransfer& transfer);
    bool putBack(ImportTransfer& transfer);
    bool settleUnfinishedImport();

    ProgressDialog* m_progress = nullptr; ///< made on first use, a child of the page
};

#endif
