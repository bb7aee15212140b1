#include "ConfigWidget.h"

#include "BusFileDataManager.h"
#include "BusMappingTab.h"
#include "DataAccess.h"
#include "MappingService.h"
#include "UpdateState.h"
#include "ZelFunctions.h"
#include "ui_ConfigWidget.h"

#include <QButtonGroup>
#include <QTabBar>
#include <QTableWidget>
#include <QToolButton>

using namespace Mapping;

namespace {

BusFileDataManager* service()
{
    return BusFileDataManager::getInstance();
}

// What the operator enters, to be compared.
QString entriesOf(const Buses& buses)
{
    QStringList entries;
    for (const MappingBus& bus : buses) {
        for (const MappingArea& area : bus.areas) {
            entries << QString::number(area.start);
            for (const MappingRow& row : area.user)
                entries << QString::number(row.quantity) << QString::number(row.start);
        }
    }
    return entries.join(QLatin1Char(' '));
}

} // namespace

ConfigWidget::ConfigWidget()
    : PageBase("ConfigWidget")
    , ui(std::make_unique<Ui::ConfigWidget>())
{
    ui->setupUi(this);
    ui->tabWidget_Bus->tabBar()->setAccessibleName(ui->label_title->text());
    buildTabs();
    // The arrows: keys go from tab to tab.
    const QList<QToolButton*> arrows = ui->tabWidget_Bus->tabBar()->findChildren<QToolButton*>();
    for (QToolButton* arrow : arrows)
        arrow->setFocusPolicy(Qt::NoFocus);
    edits().add([this] { return entriesOf(m_model.buses()); });
    applyStyle();
    showCurrent();

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
        const bool isOn = m_busNames.contains(QLatin1String(infoOf(tab->bus()).name()), Qt::CaseInsensitive);
        const bool isEnabled =
            tab->bus() == Bus::MtcpSlave || (isOn && (tab->bus() != Bus::MtcpMaster || m_model.isFree()));
        // Visibility too: the tab bar gives a tab that is only disabled its place again at the next layout,
        // if at all.
        ui->tabWidget_Bus->setTabEnabled(static_cast<int>(tab->bus()), isEnabled);
        ui->tabWidget_Bus->setTabVisible(static_cast<int>(tab->bus()), isEnabled);
    }
}

QStringList ConfigWidget::switchedOnBuses()
{
    QStringList names;
    for (const BusName& bus : service()->getBusNameList(true, true))
        names << bus.name;
    return names;
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

void ConfigWidget::showCurrent()
{
    BusMappingTab* tab = currentTab();
    tab->showTable(m_model, m_editing);
    tab->takeTips(ui->lab_Tips);
    ui->lab_Tips->setText(Mapping::translated(tipsOf(tab->tableNumber(), m_model.mode())));
}

void ConfigWidget::showAll()
{
    for (BusMappingTab* tab : m_tabs)
        tab->showTable(m_model, m_editing);
    showCurrent();
}

// The mode and the roles that are on belong to what is shown.
std::vector<PageBase::PageFile> ConfigWidget::files() const
{
    return {heldByService(ConfigFile::BusRoles), heldByService(ConfigFile::IoMapping)};
}

void ConfigWidget::beginLoad()
{
    if (m_editing)
        setEditing(false);
}

void ConfigWidget::fill()
{
    m_model.load(MappingService::fromService(service()->getBusNumAndAddr()),
                 service()->isOpenFreeBus() ? MappingConfig::Free : MappingConfig::Fixed);
    m_busNames = switchedOnBuses();
    m_loaded = true;
    enableTabs();
    showAll();
}

// Another page may have switched the mode or a bus meanwhile. What was loaded before would be saved to a mode
// that it does not belong to; a bus only has its tab or has it no more.
void ConfigWidget::showEvent(QShowEvent* event)
{
    if (m_loaded && !m_save.isUnderWay()) {
        if (m_model.isFree() != service()->isOpenFreeBus()) {
            setEditing(false);
            refill();
        } else if (m_busNames != switchedOnBuses()) {
            m_busNames = switchedOnBuses();
            enableTabs();
        }
    }
    PageBase::showEvent(event);
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
        // Queued: the box that a cell opens may outlast the page, and the table is not done with the press
        // while it tells of it.
        if (editing)
            connect(table, &QTableWidget::cellClicked, this, handler, Qt::QueuedConnection);
    }
    showAll();
}

void ConfigWidget::editCell(Bus bus, int row, int column)
{
    // A second press may come before the first one has opened its box.
    if (!m_editing || m_entering)
        return;
    const int number = m_tabs.at(static_cast<std::size_t>(bus))->tableNumber();
    const std::vector<MappingModel::Row> rows = m_model.rowsOf(number);
    if (row < 0 || row >= static_cast<int>(rows.size()))
        return;
    const MappingModel::Row& pressedRow = rows[static_cast<std::size_t>(row)];
    m_editedTable = number;
    m_editedType = pressedRow.type;

    const QPointer<ConfigWidget> self(this);
    m_entering = true;
    openEntry(bus, pressedRow, m_model.pressed(number, pressedRow, column));
    if (self)
        m_entering = false;
}

void ConfigWidget::openEntry(Bus bus, const MappingModel::Row& row, const MappingModel::Press& press)
{
    if (press.refusal)
        refuse(*press.refusal);
    if (press.kind == MappingModel::Press::Nothing)
        return;
    const bool isQuantity = press.kind == MappingModel::Press::EnterQuantity;
    const char* slot = SLOT(slotSetValue(double));
    if (bus == Bus::MtcpMaster)
        slot = isQuantity ? SLOT(slotMbcSetValue(double)) : SLOT(slotMbcSetAddr(double));
    else if (bus == Bus::MtcpSlave && m_model.isFree())
        slot = isQuantity ? SLOT(slotSetMtcpFreeValue(double)) : SLOT(slotSetMtcpFreeByteAndAddr(double));
    const QString caption = isQuantity ? Mapping::translated(row.typeText) : tr("Start Address");
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
        refuse(*entry.refusal);
        return;
    }
    if (entry.movedSlaveBlock)
        MappingSave::changeUpdateBits(0, UpdateState::SlaveBlocksMoved);
    showAll();
    edits().check();
}

void ConfigWidget::refuse(const Message& message)
{
    tell(static_cast<MsgBox::Kind>(message.severity), Mapping::translated(message.text));
}

void ConfigWidget::on_bt_EditOrSave_clicked()
{
    if (!isReadyToSave())
        return;
    if (!m_editing) {
        setEditing(true);
        return;
    }
    if (const Refusal refusal = m_model.saveRefusal(switchedOnBuses())) {
        refuse(*refusal);
        return;
    }
    switch (ask(tr("Are you sure to Save Configuration?"), MsgBox::YesNo)) {
    case Answer::Confirmed:
        break;
    case Answer::Second:
        setEditing(false);
        refill();
        return;
    default:
        return;
    }
    if (DataAccess::isRobotRunning())
        return;
    if (DataAccess::isServoOn())
        tell(MsgBox::Warning, tr("Please turn off the servo first!"));
    else
        m_save.begin(MappingService::editedBuses(m_model.buses()));
}

void ConfigWidget::forbidEditing()
{
    ui->bt_EditOrSave->setEnabled(false);
}

void ConfigWidget::busNotification(int kind, const QString& path, bool success)
{
    constexpr int Sent = 1;
    if (kind == Sent)
        m_save.sent(path, success);
}

void ConfigWidget::refreshStatus()
{
    if (!m_editing)
        emit sendSaveSignal();
}

void ConfigWidget::slotSaveAndReboot()
{
    m_save.lookForAcknowledgement();
}

void ConfigWidget::slotRestoreUi()
{
    m_save.tick();
}
