#include "UsbImport.h"

#include "ExportFolders.h"
#include "ImportJournal.h"
#include "ImportJudge.h"
#include "ImportPreviewDialog.h"
#include "ImportRoles.h"
#include "ImportTransfer.h"
#include "PageBase.h"
#include "ServiceFiles.h"
#include "TransferHost.h"
#include "TransferProgress.h"
#include "UnfinishedImport.h"

#include <algorithm>

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

// What stands on the controller after a putting back.
QString outcomeOf(const ImportTransfer& transfer)
{
    const QStringList left = transfer.notPutBack();
    const QStringList others = transfer.savedSince();
    QStringList lines;
    if (!left.isEmpty())
        lines << UsbImport::tr("These files could not be put back:\n%1").arg(listed(left));
    else if (others.isEmpty())
        lines << UsbImport::tr("The former files were put back.");
    if (!others.isEmpty())
        lines << UsbImport::tr("These files were saved since by somebody else and stay as they are:\n%1")
                     .arg(listed(others));
    return lines.join(QLatin1Char('\n'));
}

int missingOf(const std::vector<ImportEntry>& entries)
{
    return static_cast<int>(std::count_if(entries.begin(), entries.end(),
                                          [](const ImportEntry& entry) { return !entry.isBrought(); }));
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
        ServiceFiles::requestAll(); // the service may have read in the middle of it
}

void UsbImport::replaceFiles(const QString& drive, const ExportFolder& folder)
{
    std::vector<ImportEntry> entries;
    ImportedRoles roles;
    ImportTransfer transfer(entries);
    if (!prepare(drive, folder, transfer, entries, roles) || !isConfirmed(folder, entries, roles) ||
        !m_page->checkServoOff())
        return;
    const TransferResult result = send(transfer, static_cast<int>(entries.size()) - missingOf(entries));
    if (!m_page)
        return; // what was sent is put back when the transfer goes
    if (result.isDone())
        takeFilesOver();
    else
        tellFailure(result, transfer);
    if (m_page && !result.isDone() && transfer.hasSent())
        showFiles(); // what was put back, or the mixture
}

bool UsbImport::prepare(const QString& drive, const ExportFolder& folder, ImportTransfer& transfer,
                        std::vector<ImportEntry>& entries, ImportedRoles& roles)
{
    PageBase::Busy busy(m_page);
    TransferProgress progress(*m_page, tr("Comparing..."), 2 * static_cast<int>(importSet().size()));
    TransferResult result = copyFromDrive(drive, folder.path, progress, entries);
    if (result.isDone())
        result = transfer.fetchPresent(progress);
    QStringList faults;
    if (result.isDone()) {
        faults = judgeImport(entries);
        if (faults.isEmpty() && !planRoles(entries, m_host.roleConditions(), roles))
            faults << tr("Its bus switches cannot be read.");
        if (faults.isEmpty())
            result = transfer.seal();
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

// An export that broke off is no whole configuration: that is asked for by itself.
bool UsbImport::isConfirmed(const ExportFolder& folder, const std::vector<ImportEntry>& entries,
                            const ImportedRoles& roles)
{
    if (!isAccepted(new ImportPreviewDialog(folder.name, entries, roles, m_page)))
        return false;
    const int missing = missingOf(entries);
    const int all = static_cast<int>(entries.size());
    return missing == 0 ||
           m_page->ask(tr("The folder %1 is not a whole export:\n"
                          "it brings %2 of %3 files. The others stay as they are.\n"
                          "Import it all the same?")
                           .arg(folder.name, QString::number(all - missing), QString::number(all)),
                       MsgBox::YesNo) == Answer::Confirmed;
}

TransferResult UsbImport::send(ImportTransfer& transfer, int files)
{
    const PageBase::Busy busy(m_page);
    TransferResult result;
    {
        TransferProgress progress(*m_page, tr("Comparing..."), files);
        result = transfer.confirmPresent(progress);
    }
    if (!result.isDone() || !m_page)
        return result;
    TransferProgress progress(*m_page, tr("Importing..."), files);
    result = transfer.send(progress);
    // While the journal stands, the import is not over.
    if (result.isDone() && !transfer.finish())
        result = {TransferResult::LocalFailed, keptDirectory()};
    if (result.isDone())
        progress.setValue(ImportAtTheEnd);
    else if (progress.isWanted() && transfer.isBegun())
        transfer.putBack();
    return result;
}

bool UsbImport::showFiles()
{
    ServiceFiles::requestAll();
    m_page->catchUp();
    return !m_page.isNull();
}

void UsbImport::takeFilesOver()
{
    if (!showFiles())
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
                     tr("The files of the controller take effect with the next restart."));
        break;
    }
}

void UsbImport::tellFailure(const TransferResult& result, ImportTransfer& transfer)
{
    const QStringList lines = {tr("Import file failed!"), result.reason(),
                               transfer.hasSent() ? outcomeOf(transfer)
                                                  : tr("Nothing was changed on the controller.")};
    if (m_page->tell(MsgBox::Error, lines.join(QLatin1Char('\n'))) != Answer::Gone)
        offerPutBack(transfer);
}

void UsbImport::offerPutBack(ImportTransfer& transfer)
{
    while (transfer.isBegun()) {
        const Answer answer = m_page->ask(tr("Try again to put the former files back?"), MsgBox::YesNo);
        if (answer == Answer::Gone)
            return;
        if (answer != Answer::Confirmed) {
            transfer.leaveUnfinished();
            m_page->tell(MsgBox::Warning,
                         tr("The controller holds a mixture of former and imported files.\n"
                            "It should not be restarted before they are put back with Import."));
        } else if (m_page->checkServoOff() ? !putBack(transfer) : !m_page) {
            return;
        }
    }
}

bool UsbImport::putBack(ImportTransfer& transfer)
{
    PageBase::Busy busy(m_page);
    const bool isBack = transfer.putBack();
    if (!m_page)
        return false;
    busy.release();
    return m_page->tell(isBack ? MsgBox::Information : MsgBox::Error, outcomeOf(transfer)) != Answer::Gone;
}

bool UsbImport::settleUnfinished()
{
    UnfinishedImport unfinished = UnfinishedImport::find();
    if (!unfinished.isReadable) {
        m_page->tell(MsgBox::Error, tr("What an earlier import has replaced cannot be read now.\n"
                                       "Please try again."));
        return false;
    }
    if (unfinished.entries.empty())
        return true;
    const Answer answer = m_page->ask(tr("An earlier import was neither finished nor undone.\n"
                                         "Put the former files of the controller back now?\n"
                                         "A new import gives them up once it is sent."),
                                      MsgBox::YesNo);
    if (answer != Answer::Confirmed || !m_page->checkServoOff())
        return answer == Answer::Second;
    {
        ImportTransfer transfer(unfinished.entries);
        transfer.resume(unfinished.number);
        if (putBack(transfer))
            offerPutBack(transfer);
    } // the page may be gone, and what was left put back
    if (!m_page)
        ServiceFiles::requestAll();
    else if (!ImportJournal::isThere(keptDirectory()))
        takeFilesOver();
    else // a mixture, for which no restart is offered
        showFiles();
    return false;
}
