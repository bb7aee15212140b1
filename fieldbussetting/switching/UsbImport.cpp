#include "UsbImport.h"

#include "ExportFolders.h"
#include "ImportJudge.h"
#include "ImportPreviewDialog.h"
#include "ImportRoles.h"
#include "ImportTransfer.h"
#include "PageBase.h"
#include "ServiceFiles.h"
#include "TransferHost.h"
#include "TransferProgress.h"

using Answer = PageBase::Answer;

namespace {

constexpr int LongestList = 8;     // lines of a message box
constexpr int ImportAtTheEnd = 99; // of the progress bar

QString listed(const QStringList& lines)
{
    QStringList shown = lines.mid(0, LongestList);
    if (lines.size() > shown.size())
        shown << UsbImport::tr("... and %1 more").arg(lines.size() - shown.size());
    return shown.join(QLatin1Char('\n'));
}

QString notPutBackText(const ImportTransfer& transfer)
{
    return UsbImport::tr("These files could not be put back:\n%1").arg(listed(transfer.notPutBack()));
}

} // namespace

UsbImport::UsbImport(PageBase& page, TransferHost& host)
    : m_page(&page)
    , m_host(host)
{
}

void UsbImport::run(const QString& drive, const ExportFolder& folder)
{
    replaceFiles(drive, folder);
    if (!m_page)
        ServiceFiles::readAnew(); // the service may have read in the middle of it
}

void UsbImport::replaceFiles(const QString& drive, const ExportFolder& folder)
{
    std::vector<ImportEntry> entries;
    ImportedRoles roles;
    ImportTransfer transfer(entries);
    if (!prepare(drive, folder, transfer, entries, roles) ||
        !isAccepted(new ImportPreviewDialog(folder.name, entries, roles, m_page)) || !m_page->checkServoOff())
        return;
    const TransferResult result = send(transfer, 2 * static_cast<int>(entries.size()) + 1);
    if (!m_page)
        return; // what was sent is put back when the transfer goes
    if (result.isDone())
        takeFilesOver();
    else
        tellFailure(result, transfer);
}

bool UsbImport::prepare(const QString& drive, const ExportFolder& folder, ImportTransfer& transfer,
                        std::vector<ImportEntry>& entries, ImportedRoles& roles)
{
    PageBase::Busy busy(m_page);
    TransferProgress progress(*m_page, tr("Importing..."), 2 * static_cast<int>(importSet().size()));
    TransferResult result = copyFromDrive(drive, folder.path, progress, entries);
    if (result.isDone())
        result = transfer.fetchPresent(progress);
    QStringList faults;
    if (result.isDone()) {
        faults = judgeImport(entries);
        if (faults.isEmpty() && !planRoles(entries, m_host.roleConditions(), roles))
            faults << tr("Its bus switches cannot be read.");
    }
    if (!progress.isWanted())
        return false;
    progress.close();
    busy.release();
    if (!result.isDone())
        tellFailure(result, transfer);
    else if (!faults.isEmpty())
        m_page->tell(MsgBox::Error,
                     tr("The folder %1 cannot be imported:\n%2").arg(folder.name, listed(faults)));
    return result.isDone() && faults.isEmpty();
}

TransferResult UsbImport::send(ImportTransfer& transfer, int steps)
{
    const PageBase::Busy busy(m_page);
    TransferProgress progress(*m_page, tr("Importing..."), steps);
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

void UsbImport::takeFilesOver()
{
    m_host.holdSave();
    ServiceFiles::readAnew();
    if (!m_page)
        return;
    switch (m_page->askRestart()) {
    case Answer::Confirmed:
        if (Restart::isAllowed())
            m_page->restart(Restart::Way::WhenAllowed);
        else
            m_page->tellRestarted(false);
        break;
    case Answer::Gone:
        break;
    default:
        m_page->tell(MsgBox::Information,
                     tr("The files of the controller take effect with the next restart.\n"
                        "Until then the pages may show what was there before,\n"
                        "and the bus switches cannot be saved."));
        break;
    }
}

void UsbImport::tellFailure(const TransferResult& result, ImportTransfer& transfer)
{
    const QString outcome = !transfer.notPutBack().isEmpty() ? notPutBackText(transfer)
                            : result.code == TransferResult::SendFailed
                                ? tr("The former files were put back.")
                                : tr("Nothing was changed on the controller.");
    const QStringList lines = {tr("Import file failed!"), result.reason(), outcome};
    if (m_page->tell(MsgBox::Error, lines.join(QLatin1Char('\n'))) != Answer::Gone)
        offerPutBack(transfer);
}

void UsbImport::offerPutBack(ImportTransfer& transfer)
{
    while (transfer.hasSent()) {
        const Answer answer = m_page->ask(tr("Try again to put the former files back?"), MsgBox::YesNo);
        if (answer == Answer::Gone)
            return;
        if (answer != Answer::Confirmed)
            transfer.leaveUnfinished();
        else if (m_page->checkServoOff() ? !putBack(transfer) : !m_page)
            return;
    }
}

bool UsbImport::putBack(ImportTransfer& transfer)
{
    PageBase::Busy busy(m_page);
    const bool isBack = transfer.putBack();
    if (!m_page)
        return false;
    busy.release();
    return (isBack ? m_page->tell(MsgBox::Information, tr("The former files were put back."))
                   : m_page->tell(MsgBox::Error, notPutBackText(transfer))) != Answer::Gone;
}

bool UsbImport::settleUnfinished()
{
    std::vector<ImportEntry> entries = ImportTransfer::unfinished();
    if (entries.empty())
        return true;
    const Answer answer = m_page->ask(tr("An earlier import was neither finished nor undone.\n"
                                         "Put the former files of the controller back now?\n"
                                         "A new import gives them up once it is sent."),
                                      MsgBox::YesNo);
    if (answer != Answer::Confirmed || !m_page->checkServoOff())
        return answer == Answer::Second;
    {
        ImportTransfer transfer(entries);
        transfer.resume();
        if (putBack(transfer))
            offerPutBack(transfer);
    } // the page may be gone, and what was left put back
    if (m_page)
        takeFilesOver();
    else
        ServiceFiles::readAnew();
    return false;
}
