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
    explicit BusTransferPage(const char* className);

    /// Whether a save or a load is under way; nothing is carried meanwhile.
    virtual bool isSaving() const = 0;
    virtual RoleConditions roleConditions() const = 0;
    /// Called when an import, or putting one back, has changed the controller's files. What the page shows is
    /// not what they hold: it must not be saved over them before the page is made anew.
    virtual void holdSave() = 0;

    /// Whether the page may save over the controller's files; otherwise the operator is told why not, and the
    /// page may be gone.
    bool isSaveAllowed();

private slots:
    void on_btn_import_clicked();
    void on_btn_export_clicked();

private:
    /// Runs one transfer at a time. The page may be gone afterwards.
    void transferOnce(void (BusTransferPage::*transfer)());
    /// Whether one of the two buttons is at work, from its first box to its last. Input is blocked for
    /// fingers only: a key can press a button that has the focus. Of one on a page that was closed meanwhile
    /// the operator is told, and this page may be gone.
    bool isHeldUp();
    /// The path of the drive; empty, with its message, when there is none. The page may then be gone.
    QString insertedDrive();
    void exportToDrive();
    void importFromDrive();

    ProgressDialog* progressDialog();
    void importFolder(const QString& drive, const ExportFolder& folder);
    void replaceFiles(const QString& drive, const ExportFolder& folder);
    // False: it ended, with its message, and the page may be gone.
    bool prepareImport(const QString& drive, const ExportFolder& folder, ImportTransfer& transfer,
                       std::vector<ImportEntry>& entries, ImportedRoles& roles);
    bool isImportWanted(const ExportFolder& folder, const std::vector<ImportEntry>& entries,
                        const ImportedRoles& roles);
    TransferResult sendImport(ImportTransfer& transfer, int steps);
    // To be called when the controller's files have changed below what the pages show.
    void takeFilesOver();
    void failImport(const TransferResult& result, ImportTransfer& transfer);
    QString notPutBackText(const ImportTransfer& transfer) const;
    void offerPutBack(ImportTransfer& transfer);
    bool putBack(ImportTransfer& transfer);
    bool settleUnfinishedImport();

    ProgressDialog* m_progress = nullptr; ///< made on first use, a child of the page
    const int m_shownFiles;               ///< how often files had changed when the page was made
};

#endif
