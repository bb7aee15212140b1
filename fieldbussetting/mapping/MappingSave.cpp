#include "MappingSave.h"

#include "BusFileDataManager.h"
#include "ControllerVariables.h"
#include "FormerFiles.h"
#include "SysSettingApi.h"
#include "UpdateState.h"

namespace {

// The thirtieth tick ends the wait.
constexpr Poll::Rule Acknowledgement = {500, 29};
constexpr unsigned AfterRestartMs = 500;

bool isUpdateBitSet(int bit)
{
    return (ControllerVariables::ifidbus_xml_update_state & bit) != 0;
}

} // namespace

MappingSave::MappingSave(PageBase& page, MappingSaveHost& host)
    : m_page(page)
    , m_host(host)
    , m_patience(Acknowledgement, &page)
{
}

void MappingSave::changeUpdateBits(int dropped, int added)
{
    ControllerVariables::ifidbus_xml_update_state =
        (ControllerVariables::ifidbus_xml_update_state & ~dropped) | added;
}

void MappingSave::begin(const std::vector<BusAddrNumInfo>& quantities)
{
    m_notice.open(&m_page, tr("Please wait...."));
    m_busy.emplace(&m_page);
    m_host.leaveEditing();
    // The acknowledgement itself is looked for on the idle ticks.
    m_patience.start([] { return false; }, [this](Poll::Answer) { giveUp(); });
    const QPointer<PageBase> page(&m_page);
    FormerFiles::instance().serviceBegins(QLatin1String(FileLocations::FieldbusConfigXml));
    if (!page)
        return;
    BusFileDataManager* service = BusFileDataManager::getInstance();
    service->setBusNumAndAddr(quantities);
    service->writeSendFieldbusCfg(); // its result may close the page
}

void MappingSave::sent(const QString& path, bool success)
{
    if (!isUnderWay() || path != QLatin1String(FileLocations::FieldbusConfigXml))
        return;
    FormerFiles::instance().serviceEnds(path, success);
    m_page.noteServiceSent(ConfigFile::IoMapping, success);
    if (success) {
        // The answer to the save before, which was rejected or came too late, is not the one to this save.
        changeUpdateBits(UpdateState::Taken | UpdateState::Rejected, UpdateState::Announced);
        m_waiting = true;
        return;
    }
    endWaiting();
    tellEnd(MsgBox::Error, tr("Failed to send %1 file to controller!").arg(path));
}

void MappingSave::endWaiting()
{
    m_patience.stop();
    m_notice.close();
    m_waiting = false;
}

// Ticks go on while it asks and waits: the waiting ends first, so that none of them gets here again.
void MappingSave::lookForAcknowledgement()
{
    if (!m_waiting || !isUpdateBitSet(UpdateState::Taken))
        return;
    endWaiting();
    switch (
        m_page.askGrave(tr("Save successfully, and send Configuration file to controller! Are you sure to "
                           "restart robot to make it effect?"),
                        MsgBox::YesNo)) {
    case PageBase::Answer::Gone:
        return;
    case PageBase::Answer::Confirmed:
        restartController();
        return;
    default:
        break;
    }
    // Looked at here only: a restart is offered whatever the controller made of the file.
    if (isUpdateBitSet(UpdateState::Rejected)) {
        tellEnd(MsgBox::Error, tr("Bus configuration modification failed!"));
        return;
    }
    m_host.forbidEditing();
    tellEnd(MsgBox::Information, tr("Please manually power off and restart the robot later!"));
}

void MappingSave::restartController()
{
    const QPointer<PageBase> page(&m_page);
    SysSettingApi::delay_MSec(Restart::BeforeRestartMs);
    if (!page)
        return;
    SysSettingApi::set_bswrsdet(true);
    SysSettingApi::delay_MSec(AfterRestartMs);
    if (!page)
        return;
    const bool isStopped = Restart::controllerStopped();
    if (!page)
        return;
    if (isStopped)
        m_busy.reset();
    if (m_page.tellRestarted(isStopped) != PageBase::Answer::Gone)
        m_busy.reset();
}

void MappingSave::giveUp()
{
    endWaiting();
    tellEnd(MsgBox::Error, tr("Bus configuration modification failed!"));
}

void MappingSave::tellEnd(MsgBox::Kind kind, const QString& text)
{
    if (m_page.tell(kind, text) != PageBase::Answer::Gone)
        m_busy.reset();
}
