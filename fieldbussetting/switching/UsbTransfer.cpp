#include "UsbTransfer.h"

#include "ConfigExport.h"
#include "ImportFolderDialog.h"
#include "PageBase.h"
#include "ProgressDialog.h"
#include "TransferHost.h"
#include "TransferProgress.h"
#include "TransferUnderWay.h"
#include "UnfinishedImport.h"
#include "UsbImport.h"
#include "ZelFunctions.h"

UsbTransfer::UsbTransfer(PageBase& page, TransferHost& host)
    : m_page(page)
    , m_host(host)
{
}

void UsbTransfer::runOnce(void (UsbTransfer::*transfer)())
{
    if (isHeldUp())
        return;
    ProgressDialog::hideOn(m_page);
    const TransferUnderWay underWay(&m_page);
    if (underWay.isAlone())
        (this->*transfer)();
    else
        m_page.tell(MsgBox::Warning, tr("Another pendant is importing or exporting in the same directory."));
}

bool UsbTransfer::isHeldUp()
{
    const TransferUnderWay* underWay = TransferUnderWay::current();
    if (underWay && !underWay->hasPage())
        m_page.tell(MsgBox::Information, tr("The last import or export is still coming to its end.\n"
                                            "Please try again in a moment."));
    return underWay != nullptr;
}

bool UsbTransfer::isSaveAllowed()
{
    if (isHeldUp())
        return false;
    ProgressDialog::hideOn(m_page);
    // Only a question: where the former files cannot be put back, the operator must not be locked out.
    return !UnfinishedImport::exists() || m_page.ask(tr("An earlier import was neither finished nor undone.\n"
                                                        "With Import the former files can be put back.\n"
                                                        "Save the bus switches all the same?"),
                                                     MsgBox::YesNo) == PageBase::Answer::Confirmed;
}

QString UsbTransfer::insertedDrive()
{
    const QString drive = ZelGetUSBDrives();
    if (drive.isEmpty())
        m_page.tell(MsgBox::Error,
                    m_page.translated(QT_TRANSLATE_NOOP("BusSettingWidget", "No device found!")));
    return drive;
}

void UsbTransfer::runExport()
{
    if (!m_page.checkServoOff() || !UsbImport(m_page, m_host).settleUnfinished())
        return;
    if (!m_page.confirmed(m_page.translated(QT_TRANSLATE_NOOP(
            "BusSettingWidget",
            "Do you want to export the current robot\n bus related configuration file to the USB "
            "drive?"))))
        return;
    const QString drive = insertedDrive();
    if (drive.isEmpty())
        return;
    PageBase::Busy busy(&m_page);
    TransferProgress progress(m_page,
                              m_page.translated(QT_TRANSLATE_NOOP("BusSettingWidget", "Exporting...")));
    const TransferResult result = ConfigExport(drive, progress).run();
    if (!progress.isWanted())
        return;
    if (result.isDone())
        progress.setValue(TransferProgress::Full);
    // How far it came stays in sight when the controller did not answer.
    if (result.code == TransferResult::FetchFailed)
        progress.leaveOpen();
    else
        progress.close();
    busy.release();
    if (result.isDone())
        m_page.tell(MsgBox::Information,
                    m_page.translated(QT_TRANSLATE_NOOP("BusSettingWidget", "Export file success!")));
    else
        m_page.tell(MsgBox::Error,
                    m_page.translated(QT_TRANSLATE_NOOP("BusSettingWidget", "Export file failed!")));
}

void UsbTransfer::runImport()
{
    UsbImport import(m_page, m_host);
    if (!m_page.checkServoOff() || !import.settleUnfinished())
        return;
    const QString drive = insertedDrive();
    if (drive.isEmpty())
        return;
    const std::vector<ExportFolder> folders = exportFoldersOn(drive);
    if (folders.empty()) {
        m_page.tell(MsgBox::Error, tr("No exported bus configuration found on the USB drive!"));
        return;
    }
    int chosen = -1;
    if (isAccepted(new ImportFolderDialog(folders, &m_page),
                   [&chosen](const ImportFolderDialog& dialog) { chosen = dialog.chosen(); }))
        import.run(drive, folders[static_cast<std::size_t>(chosen)]);
}
