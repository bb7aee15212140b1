#include "BusTransferPage.h"

#include "BusFileDataManager.h"
#include "ConfigExport.h"
#include "ExportFolders.h"
#include "ImportFolderDialog.h"
#include "ImportJudge.h"
#include "ImportPreviewDialog.h"
#include "ImportRoles.h"
#include "ImportTransfer.h"
#include "ProgressDialog.h"
#include "TransferProgress.h"
#include "ZelFunctions.h"

namespace {

constexpr int LongestList = 8;     // lines of a message box
constexpr int ImportAtTheEnd = 99; // of the progress bar

// What was sent is put back also when its page has gone.
bool transferring = false;
QPointer<BusTransferPage> transferringPage;

// How often the controller's files have changed below the bus file data service. A page that was made before
// shows former ones, also one that was opened while those of a closed page were put back.
int fileChanges = 0;

// The service holds what it read before, and would write that back with the next save. Also when no page is
// left: the next one shows what the service holds.
void readServiceAnew()
{
    ++fileChanges;
    BusFileDataManager::getInstance()->emitGetFieldXml();
    BusFileDataManager::getInstance()->emitGetFieldbusCfg();
}

QString listed(const QStringList& lines)
{
    QStringList shown = lines.mid(0, LongestList);
    if (lines.size() > shown.size())
        shown << BusTransferPage::tr("... and %1 more").arg(lines.size() - shown.size());
    return shown.join(QLatin1Char('\n'));
}

} // namespace

BusTransferPage::BusTransferPage(const char* className)
    : PageBase(className)
    , m_shownFiles(fileChanges)
{
}

ProgressDialog* BusTransferPage::progressDialog()
{
    if (!m_progress)
        m_progress = new ProgressDialog(this);
    return m_progress;
}

void BusTransferPage::on_btn_import_clicked()
{
    transferOnce(&BusTransferPage::importFromDrive);
}

void BusTransferPage::on_btn_export_clicked()
{
    transferOnce(&BusTransferPage::exportToDrive);
}

void BusTransferPage::transferOnce(void (BusTransferPage::*transfer)())
{
    if (isSaving() || isHeldUp())
        return;
    transferring = true;
    transferringPage = this;
    (this->*transfer)();
    transferring = false;
}

bool BusTransferPage::isHeldUp()
{
    if (!transferring)
        return false;
    if (!transferringPage)
        tell(MsgBox::Information, tr("The last import or export is still coming to its end.\n"
                                     "Please try again in a moment."));
    return true;
}

bool BusTransferPage::isSaveAllowed()
{
    if (isHeldUp())
        return false;
    // Only a question: where the former files cannot be put back, the operator must not be locked out.
    if (!ImportTransfer::unfinished().empty() && ask(tr("An earlier import was neither finished nor undone.\n"
                                                        "With Import the former files can be put back.\n"
                                                        "Save the bus switches all the same?"),
                                                     MsgBox::YesNo) != Answer::Confirmed)
        return false;
    if (m_shownFiles != fileChanges) {
        tell(MsgBox::Warning, tr("The files of the controller have changed since this page was opened.\n"
                                 "Please close the application and open it again first."));
        return false;
    }
    return true;
}

QString BusTransferPage::insertedDrive()
{
    const QString drive = ZelGetUSBDrives();
    if (drive.isEmpty())
        tell(MsgBox::Error, translated(QT_TRANSLATE_NOOP("BusSettingWidget", "No device found!")));
    return drive;
}

void BusTransferPage::exportToDrive()
{
    if (!checkServoOff() || !settleUnfinishedImport())
        return;
    if (!confirmed(translated(QT_TRANSLATE_NOOP(
            "BusSettingWidget",
            "Do you want to export the current robot\n bus related configuration file to the USB "
            "drive?"))))
        return;
    const QString drive = insertedDrive();
    if (drive.isEmpty())
        return;
    Busy busy(this);
    TransferProgress progress(progressDialog(),
                              translated(QT_TRANSLATE_NOOP("BusSettingWidget", "Exporting...")));
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
        tell(MsgBox::Information, translated(QT_TRANSLATE_NOOP("BusSettingWidget", "Export file success!")));
    else
        tell(MsgBox::Error, translated(QT_TRANSLATE_NOOP("BusSettingWidget", "Export file failed!")));
}

void BusTransferPage::importFromDrive()
{
    if (!checkServoOff() || !settleUnfinishedImport())
        return;
    const QString drive = insertedDrive();
    if (drive.isEmpty())
        return;
    const std::vector<ExportFolder> folders = exportFoldersOn(drive);
    if (folders.empty()) {
        tell(MsgBox::Error, tr("No exported bus configuration found on the USB drive!"));
        return;
    }
    int chosen = -1;
    if (isAccepted(new ImportFolderDialog(folders, this),
                   [&chosen](const ImportFolderDialog& dialog) { chosen = dialog.chosen(); }))
        importFolder(drive, folders[static_cast<std::size_t>(chosen)]);
}

void BusTransferPage::importFolder(const QString& drive, const ExportFolder& folder)
{
    const QPointer<BusTransferPage> self(this);
    replaceFiles(drive, folder);
    if (!self)
        readServiceAnew(); // the service may have read in the middle of it
}

void BusTransferPage::replaceFiles(const QString& drive, const ExportFolder& folder)
{
    std::vector<ImportEntry> entries;
    ImportedRoles roles;
    ImportTransfer transfer(entries);
    if (!prepareImport(drive, folder, transfer, entries, roles) || !isImportWanted(folder, entries, roles) ||
        !checkServoOff())
        return;
    const QPointer<BusTransferPage> self(this);
    const TransferResult result = sendImport(transfer, 2 * static_cast<int>(entries.size()) + 1);
    if (!self)
        return; // what was sent is put back when the transfer goes
    if (result.isDone())
        takeFilesOver();
    else
        failImport(result, transfer);
}

// Up to the preview: nothing is sent yet.
bool BusTransferPage::prepareImport(const QString& drive, const ExportFolder& folder,
                                    ImportTransfer& transfer, std::vector<ImportEntry>& entries,
                                    ImportedRoles& roles)
{
    Busy busy(this);
    TransferProgress progress(progressDialog(), tr("Importing..."), 2 * static_cast<int>(importSet().size()));
    TransferResult result = copyFromDrive(drive, folder.path, progress, entries);
    QStringList faults;
    if (result.isDone()) {
        faults = judgeImport(entries);
        if (faults.isEmpty() && !planRoles(entries, roleConditions(), roles))
            faults << tr("Its bus switches cannot be read.");
        if (faults.isEmpty())
            result = transfer.fetchPresent(progress);
    }
    if (!progress.isWanted())
        return false;
    progress.close();
    busy.release();
    if (!result.isDone())
        failImport(result, transfer);
    else if (!faults.isEmpty())
        tell(MsgBox::Error, tr("The folder %1 cannot be imported:\n%2").arg(folder.name, listed(faults)));
    return result.isDone() && faults.isEmpty();
}

bool BusTransferPage::isImportWanted(const ExportFolder& folder, const std::vector<ImportEntry>& entries,
                                     const ImportedRoles& roles)
{
    return isAccepted(new ImportPreviewDialog(folder.name, entries, roles, this));
}

TransferResult BusTransferPage::sendImport(ImportTransfer& transfer, int steps)
{
    const Busy busy(this);
    TransferProgress progress(progressDialog(), tr("Importing..."), steps);
    TransferResult result = transfer.confirmPresent(progress);
    if (result.isDone())
        result = transfer.send(progress);
    if (result.isDone()) {
        transfer.finish();
        progress.setValue(ImportAtTheEnd);
    } else if (progress.isWanted() && transfer.hasSent()) {
        transfer.putBack();
    }
    return result;
}

void BusTransferPage::takeFilesOver()
{
    holdSave();
    const QPointer<BusTransferPage> self(this);
    readServiceAnew();
    if (!self)
        return;
    switch (askRestart()) {
    case Answer::Confirmed:
        if (Restart::isAllowed())
            restart(Restart::Way::WhenAllowed);
        else
            tellRestarted(false);
        break;
    case Answer::Gone:
        break;
    default:
        tell(MsgBox::Information, tr("The files of the controller take effect with the next restart.\n"
                                     "Until then the pages may show what was there before,\n"
                                     "and the bus switches cannot be saved."));
        break;
    }
}

void BusTransferPage::failImport(const TransferResult& result, ImportTransfer& transfer)
{
    const QString outcome = !transfer.notPutBack().isEmpty() ? notPutBackText(transfer)
                            : result.code == TransferResult::SendFailed
                                ? tr("The former files were put back.")
                                : tr("Nothing was changed on the controller.");
    const QStringList lines = {tr("Import file failed!"), result.reason(), outcome};
    if (tell(MsgBox::Error, lines.join(QLatin1Char('\n'))) != Answer::Gone)
        offerPutBack(transfer);
}

QString BusTransferPage::notPutBackText(const ImportTransfer& transfer) const
{
    return tr("These files could not be put back:\n%1").arg(listed(transfer.notPutBack()));
}

// For as long as something is to be put back and the operator wants to try.
void BusTransferPage::offerPutBack(ImportTransfer& transfer)
{
    const QPointer<BusTransferPage> self(this);
    while (transfer.hasSent()) {
        const Answer answer = ask(tr("Try again to put the former files back?"), MsgBox::YesNo);
        if (answer == Answer::Gone)
            return;
        if (answer != Answer::Confirmed)
            transfer.leaveUnfinished();
        else if (checkServoOff() ? !putBack(transfer) : !self)
            return;
    }
}

bool BusTransferPage::putBack(ImportTransfer& transfer)
{
    const QPointer<BusTransferPage> self(this);
    Busy busy(this);
    const bool isBack = transfer.putBack();
    if (!self)
        return false;
    busy.release();
    return (isBack ? tell(MsgBox::Information, tr("The former files were put back."))
                   : tell(MsgBox::Error, notPutBackText(transfer))) != Answer::Gone;
}

bool BusTransferPage::settleUnfinishedImport()
{
    std::vector<ImportEntry> entries = ImportTransfer::unfinished();
    if (entries.empty())
        return true;
    const Answer answer = ask(tr("An earlier import was neither finished nor undone.\n"
                                 "Put the former files of the controller back now?\n"
                                 "A new import gives them up once it is sent."),
                              MsgBox::YesNo);
    if (answer != Answer::Confirmed || !checkServoOff())
        return answer == Answer::Second;
    const QPointer<BusTransferPage> self(this);
    {
        ImportTransfer transfer(entries);
        transfer.resume();
        if (putBack(transfer))
            offerPutBack(transfer);
    } // the page may be gone, and what was left put back
    if (self)
        takeFilesOver();
    else
        readServiceAnew();
    return false;
}
