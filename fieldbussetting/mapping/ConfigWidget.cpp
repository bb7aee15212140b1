#include "ConfigWidget.h"

#include "BusFileDataManager.h"
#include "BusMappingTab.h"
#include "ControllerVariables.h"
#include "DataAccess.h"
#include "SysSettingApi.h"
#include "ZelFunctions.h"
#include "ui_ConfigWidget.h"

#include <QButtonGroup>
#include <QTableWidget>

using namespace Mapping;

namespace {

// Bits of "ifidbus.xml_update_state"; the others are left as they are.
constexpr int SlaveBlocksMoved = 0x1;
constexpr int Rejected = 0x800;
constexpr int Taken = 0x4000;
constexpr int Announced = 0x8000;

constexpr int TickMs = 500;
constexpr int TicksOfPatience = 30;
constexpr unsigned BeforeRestartMs = 1000;
constexpr unsigned AfterRestartMs = 500;

BusFileDataManager* service()
{
    return BusFileDataManager::getInstance();
}

QStringList switchedOnBuses()
{
    QStringList names;
    for (const BusName& bus : service()->getBusNameList(true, true))
        names << bus.name;
    return names;
}

bool isUpdateBitSet(int bit)
{
    return (ControllerVariables::ifidbus_xml_update_state & bit) != 0;
}

void setUpdateBit(int bit)
{
    ControllerVariables::ifidbus_xml_update_state = ControllerVariables::ifidbus_xml_update_state | bit;
}

} // namespace

ConfigWidget::ConfigWidget()
    : PageBase("ConfigWidget")
    , ui(std::make_unique<Ui::ConfigWidget>())
{
    ui->setupUi(this);
    buildTabs();
    applyStyle();
    showCurrent();

    m_timer.setInterval(TickMs);
    connect(&m_timer, &QTimer::timeout, this, &ConfigWidget::slotRestoreUi);
    connect(this, &ConfigWidget::sendSaveSignal, this, &ConfigWidget::slotSaveAndReboot);
    lib()->set_freebus_busconfig_xml_update(0);
    setIsFieldbusCfg(true);
    service()->attach(this);
    scheduleOnce(1, &ConfigWidget::slotGetFileToUi);
}

ConfigWidget::~ConfigWidget()
{
    service()->detach(this);
}

void ConfigWidget::buildTabs()
{
    for (std::size_t bus = 0; bus < BusCount; ++bus) {
        auto* tab = new BusMappingTab(static_cast<Bus>(bus));
        connect(tab->directions(), &QButtonGroup::idClicked, this, &ConfigWidget::checkBtnsClicxkedSlot);
        ui->tabWidget_Bus->addTab(tab, BusMappingTab::captionOf(tab->bus()));
        m_tabs.push_back(tab);
    }
    connect(ui->tabWidget_Bus, &QTabWidget::currentChanged, this,
            &ConfigWidget::onTabWidgetBuscurrentChangedSlots);
}

void ConfigWidget::enableTabs()
{
    for (const BusMappingTab* tab : m_tabs) {
        const bool isOn = m_busNames.contains(QLatin1String(infoOf(tab->bus()).name), Qt::CaseInsensitive);
        const bool isEnabled =
            tab->bus() == Bus::MtcpSlave || (isOn && (tab->bus() != Bus::MtcpMaster || m_model.isFree()));
        // Visibility too: the tab bar gives a tab that is only disabled its place again at the next layout,
        // if at all.
        ui->tabWidget_Bus->setTabEnabled(static_cast<int>(tab->bus()), isEnabled);
        ui->tabWidget_Bus->setTabVisible(static_cast<int>(tab->bus()), isEnabled);
    }
}

BusMappingTab* ConfigWidget::currentTab() const
{
    return m_tabs.at(static_cast<std::size_t>(ui->tabWidget_Bus->currentIndex()));
}

void ConfigWidget::checkBtnsClicxkedSlot(int)
{
    showCurrent();
}

void ConfigWidget::onTabWidgetBuscurrentChangedSlots(int index)
{
    Q_UNUSED(index)
    showCurrent();
}

void ConfigWidget::fill(BusMappingTab* tab)
{
    const int number = tab->tableNumber();
    const std::vector<MappingModel::Row> rows = m_model.rowsOf(number);
    tab->showRows(rows);
    std::vector<std::pair<int, int>> editable;
    for (std::size_t row = 0; m_editing && row < rows.size(); ++row) {
        for (int column = 0; column < MappingModel::ColumnCount; ++column) {
            if (m_model.pressed(number, rows[row], column).kind != MappingModel::Press::Nothing)
                editable.emplace_back(static_cast<int>(row), column);
        }
    }
    tab->mark(editable);
}

void ConfigWidget::showCurrent()
{
    BusMappingTab* tab = currentTab();
    fill(tab);
    tab->takeTips(ui->lab_Tips);
    ui->lab_Tips->setText(tipsOf(tab->tableNumber(), m_model.isFree()));
}

void ConfigWidget::showAll()
{
    for (BusMappingTab* tab : m_tabs)
        fill(tab);
    showCurrent();
}

void ConfigWidget::slotGetFileToUi()
{
    m_model.load(service()->getBusNumAndAddr(), service()->isOpenFreeBus());
    m_busNames = switchedOnBuses();
    m_loaded = true;
    enableTabs();
    showAll();
}

// Another page may have switched the mode or a bus meanwhile: what was loaded before would be saved to a mode
// that it does not belong to.
void ConfigWidget::showEvent(QShowEvent* event)
{
    PageBase::showEvent(event);
    if (!m_loaded || m_busy ||
        (m_model.isFree() == service()->isOpenFreeBus() && m_busNames == switchedOnBuses()))
        return;
    setEditing(false);
    slotGetFileToUi();
}

void ConfigWidget::setEditing(bool editing)
{
    const std::pair<Bus, void (ConfigWidget::*)(int, int)> handlers[] = {
        {Bus::MtcpSlave, &ConfigWidget::onMtcpEdit}, {Bus::EthcatSlave, &ConfigWidget::onEthcatEdit},
        {Bus::EipSlave, &ConfigWidget::onEipEdit},   {Bus::PfnSlave, &ConfigWidget::onPfnEdit},
        {Bus::DnSlave, &ConfigWidget::onDnsEdit},    {Bus::MtcpMaster, &ConfigWidget::onMbcEdit},
        {Bus::DnMaster, &ConfigWidget::onDnmEdit},
    };
    m_editing = editing;
    ui->bt_EditOrSave->setText(editing ? tr("Save") : tr("Edit"));
    for (const auto& [bus, handler] : handlers) {
        const QTableWidget* table = m_tabs.at(static_cast<std::size_t>(bus))->table();
        disconnect(table, &QTableWidget::cellClicked, this, nullptr);
        if (editing)
            connect(table, &QTableWidget::cellClicked, this, handler);
    }
    showAll();
}

void ConfigWidget::editCell(int row, int column)
{
    const int number = currentTab()->tableNumber();
    const std::vector<MappingModel::Row> rows = m_model.rowsOf(number);
    if (row < 0 || row >= static_cast<int>(rows.size()))
        return;
    const MappingModel::Row& pressedRow = rows[static_cast<std::size_t>(row)];
    const MappingModel::Press press = m_model.pressed(number, pressedRow, column);
    m_editedTable = number;
    m_editedType = pressedRow.type;
    if (press.refusal) {
        tell(static_cast<MsgBox::Kind>(press.refusal->severity), press.refusal->text);
        return;
    }
    if (press.kind == MappingModel::Press::Nothing)
        return;

    const bool isQuantity = press.kind == MappingModel::Press::EnterQuantity;
    const Bus bus = currentTab()->bus();
    const char* slot = SLOT(slotSetValue(double));
    if (bus == Bus::MtcpMaster)
        slot = isQuantity ? SLOT(slotMbcSetValue(double)) : SLOT(slotMbcSetAddr(double));
    else if (bus == Bus::MtcpSlave && m_model.isFree())
        slot = isQuantity ? SLOT(slotSetMtcpFreeValue(double)) : SLOT(slotSetMtcpFreeByteAndAddr(double));
    const QString caption = isQuantity ? pressedRow.cells[MappingModel::TypeColumn] : tr("Start Address");
    ZelExecNumericKeyboard(press.value, press.range.least, press.range.most, "%li", caption, this, slot);
}

void ConfigWidget::enterQuantity(double value)
{
    take(m_model.enterQuantity(m_editedTable, m_editedType, value));
}

void ConfigWidget::enterStart(double value)
{
    take(m_model.enterStart(m_editedTable, value));
}

void ConfigWidget::take(const MappingModel::Entry& entry)
{
    if (entry.refusal) {
        tell(static_cast<MsgBox::Kind>(entry.refusal->severity), entry.refusal->text);
        return;
    }
    if (entry.movedSlaveBlock)
        setUpdateBit(SlaveBlocksMoved);
    showCurrent();
}

void ConfigWidget::on_bt_EditOrSave_clicked()
{
    if (!m_editing) {
        setEditing(true);
        return;
    }
    if (const Refusal refusal = m_model.saveRefusal(switchedOnBuses())) {
        tell(static_cast<MsgBox::Kind>(refusal->severity), refusal->text);
        return;
    }
    switch (ask(tr("Are you sure to Save Configuration?"), MsgBox::YesNo)) {
    case Answer::Confirmed:
        break;
    case Answer::Second:
        setEditing(false);
        slotGetFileToUi();
        return;
    default:
        return;
    }
    if (DataAccess::isRobotRunning())
        return;
    if (DataAccess::isServoOn()) {
        tell(MsgBox::Warning, tr("Please turn off the servo first!"));
        return;
    }
    save();
}

void ConfigWidget::save()
{
    m_notice.open(this, tr("Please wait...."));
    m_busy.emplace(this);
    setEditing(false);
    m_ticks = 0;
    m_timer.start();
    service()->setBusNumAndAddr(m_model.editedBuses());
    service()->writeSendFieldbusCfg(); // its result may close the page
}

void ConfigWidget::busNotification(int kind, const QString& path, bool success)
{
    constexpr int Sent = 1;
    if (!m_busy || kind != Sent || path != QLatin1String(FileLocations::FieldbusConfigXml))
        return;
    if (success) {
        setUpdateBit(Announced);
        m_waiting = true;
        return;
    }
    endWaiting();
    if (tell(MsgBox::Error, tr("Failed to send %1 file to controller!").arg(path)) != Answer::Gone)
        m_busy.reset();
}

void ConfigWidget::refreshStatus()
{
    if (!m_editing)
        emit sendSaveSignal();
}

void ConfigWidget::endWaiting()
{
    m_timer.stop();
    m_notice.close();
    m_waiting = false;
}

// Ticks go on while it asks and waits: the waiting ends first, so that none of them gets here again.
void ConfigWidget::slotSaveAndReboot()
{
    if (!m_waiting || !isUpdateBitSet(Taken))
        return;
    endWaiting();
    switch (ask(tr("Save successfully, and send Configuration file to controller! Are you sure to restart "
                   "robot to make it effect?"),
                MsgBox::YesNo)) {
    case Answer::Gone:
        return;
    case Answer::Confirmed:
        restartController();
        return;
    default:
        break;
    }
    // Looked at here only: a restart is offered whatever the controller made of the file.
    const bool isRejected = isUpdateBitSet(Rejected);
    if (!isRejected)
        ui->bt_EditOrSave->setEnabled(false);
    if (tell(isRejected ? MsgBox::Error : MsgBox::Information,
             isRejected ? tr("Bus configuration modification failed!")
                        : tr("Please manually power off and restart the robot later!")) != Answer::Gone)
        m_busy.reset();
}

void ConfigWidget::restartController()
{
    const QPointer<ConfigWidget> self(this);
    SysSettingApi::delay_MSec(BeforeRestartMs);
    if (!self)
        return;
    SysSettingApi::set_bswrsdet(true);
    SysSettingApi::delay_MSec(AfterRestartMs);
    if (!self)
        return;
    const bool isStopped = Restart::controllerStopped();
    if (!self)
        return;
    if (isStopped) {
        m_busy.reset();
        tell(MsgBox::Information, tr("Please close and reopen the teaching pendant."));
    } else if (tell(MsgBox::Information, tr("Please manually power off and restart the robot!")) !=
               Answer::Gone) {
        m_busy.reset();
    }
}

void ConfigWidget::slotRestoreUi()
{
    if (!m_busy || ++m_ticks < TicksOfPatience)
        return;
    endWaiting();
    if (tell(MsgBox::Error, tr("Bus configuration modification failed!")) != Answer::Gone)
        m_busy.reset();
}
