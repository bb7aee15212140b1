#ifndef USBTRANSFER_H
#define USBTRANSFER_H

#include <QCoreApplication>

class PageBase;
class TransferHost;

/// Export to a USB drive and import from it, as a page offers them: one at a time, and not over what an
/// earlier import has left.
class UsbTransfer
{
    Q_DECLARE_TR_FUNCTIONS(UsbTransfer)

public:
    /// `page` and `host` are the page that this is a member of.
    UsbTransfer(PageBase& page, TransferHost& host);

    // For the buttons. The page may be gone afterwards.
    void exportToDrive() { runOnce(&UsbTransfer::runExport); }
    void importFromDrive() { runOnce(&UsbTransfer::runImport); }

    /// Whether the page may save over the controller's files; otherwise the operator is told why not, and the
    /// page may be gone.
    bool isSaveAllowed();

private:
    void runOnce(void (UsbTransfer::*transfer)());
    /// Whether one of the buttons is at work. Of one on a page that was closed meanwhile the operator is
    /// told, and this page may be gone.
    bool isHeldUp();
    /// The path of the drive; empty, with its message, when there is none. The page may then be gone.
    QString insertedDrive();
    void runExport();
    void runImport();

    PageBase& m_page;
    TransferHost& m_host;
};

#endif
