#ifndef USBIMPORT_H
#define USBIMPORT_H

#include <QCoreApplication>
#include <QPointer>

#include <vector>

class ImportTransfer;
class PageBase;
class TransferHost;
struct ExportFolder;
struct ImportEntry;
struct ImportedRoles;
struct TransferResult;

/// The import of one folder: what the operator is asked and told. It is on the stack of the button and
/// outlives the page, which any of its steps may find gone.
class UsbImport
{
    Q_DECLARE_TR_FUNCTIONS(UsbImport)

public:
    UsbImport(PageBase& page, TransferHost& host);

    /// Asks what to do with an earlier import that was neither finished nor undone. True when the operator
    /// goes on without it, or there is none.
    bool settleUnfinished();
    void run(const QString& drive, const ExportFolder& folder);

private:
    void replaceFiles(const QString& drive, const ExportFolder& folder);
    /// Up to the preview: nothing is sent yet. False: it ended, with its message.
    bool prepare(const QString& drive, const ExportFolder& folder, ImportTransfer& transfer,
                 std::vector<ImportEntry>& entries, ImportedRoles& roles);
    bool isConfirmed(const ExportFolder& folder, const std::vector<ImportEntry>& entries,
                     const ImportedRoles& roles);
    TransferResult send(ImportTransfer& transfer, int files);
    /// To be called when the controller's files have changed below what the pages show: the one of the
    /// buttons shows them, the others when they are shown. False when it is gone.
    bool showFiles();
    /// ... and offers the restart.
    void takeFilesOver();
    void tellFailure(const TransferResult& result, ImportTransfer& transfer);
    /// For as long as something is to be put back and the operator wants to try.
    void offerPutBack(ImportTransfer& transfer);
    bool putBack(ImportTransfer& transfer);

    // Not to be touched when the page is gone.
    QPointer<PageBase> m_page;
    TransferHost& m_host;
};

#endif
