#ifndef CONFIGWIDGET_H
#define CONFIGWIDGET_H

#include "BusObserver.h"
#include "MappingModel.h"
#include "MappingSave.h"

#include <QStringList>

#include <memory>

class BusMappingTab;

namespace Ui {
class ConfigWidget;
}

/// The page of the I/O mapping: per bus and direction how many variables are exchanged, and where they lie.
///
/// A save goes through the bus file data service. It is announced to the controller, which acknowledges it
/// or lets the page wait in vain for 15 s; then the restart is offered.
class ConfigWidget : public PageBase, public BusObserver, private MappingSaveHost
{
    Q_OBJECT

public:
    ConfigWidget();
    ~ConfigWidget() override;

    void refreshStatus() override;
    bool isAtWork() const override { return m_save.isUnderWay(); }
    void busNotification(int kind, const QString& path, bool success) override;

signals:
    /// On every idle tick in viewing mode: time to look for the controller's acknowledgement.
    void sendSaveSignal();

protected:
    void beginLoad() override;
    std::vector<PageFile> files() const override;
    void fill() override;
    void showEvent(QShowEvent* event) override;

private slots:
    void checkBtnsClicxkedSlot(int);
    void onTabWidgetBuscurrentChangedSlots(int index);
    void onMtcpEdit(int row, int column) { editCell(Mapping::Bus::MtcpSlave, row, column); }
    void onEthcatEdit(int row, int column) { editCell(Mapping::Bus::EthcatSlave, row, column); }
    void onEipEdit(int row, int column) { editCell(Mapping::Bus::EipSlave, row, column); }
    void onPfnEdit(int row, int column) { editCell(Mapping::Bus::PfnSlave, row, column); }
    void onDnsEdit(int row, int column) { editCell(Mapping::Bus::DnSlave, row, column); }
    void onMbcEdit(int row, int column) { editCell(Mapping::Bus::MtcpMaster, row, column); }
    void onDnmEdit(int row, int column) { editCell(Mapping::Bus::DnMaster, row, column); }
    void slotSetValue(double value) { enterQuantity(value); }
    void slotMbcSetValue(double value) { enterQuantity(value); }
    void slotMbcSetAddr(double value) { enterStart(value); }
    void slotSetMtcpFreeValue(double value) { enterQuantity(value); }
    void slotSetMtcpFreeByteAndAddr(double value) { enterStart(value); }
    void on_bt_EditOrSave_clicked();
    void slotSaveAndReboot();
    void slotRestoreUi();

private:
    void buildTabs();
    void enableTabs();
    static QStringList switchedOnBuses();
    BusMappingTab* currentTab() const;
    /// Fills the table on view and its tips.
    void showCurrent();
    /// Fills the tables of all tabs.
    void showAll();

    void setEditing(bool editing);
    void editCell(Mapping::Bus bus, int row, int column);
    /// Opens the keyboard or says why not. The page may be gone afterwards.
    void openEntry(Mapping::Bus bus, const MappingModel::Row& row, const MappingModel::Press& press);
    void enterQuantity(double value);
    void enterStart(double value);
    void take(const MappingModel::Entry& entry);
    /// The page may be gone afterwards.
    void refuse(const Mapping::Message& message);

    // What the save asks of the page.
    void leaveEditing() override { setEditing(false); }
    void forbidEditing() override;

    std::unique_ptr<Ui::ConfigWidget> ui;
    MappingModel m_model;
    QStringList m_busNames; // switched on when the quantities were loaded
    std::vector<BusMappingTab*> m_tabs;
    bool m_loaded = false;
    bool m_editing = false;
    bool m_entering = false;              // a keyboard or a refusal is open
    int m_editedTable = 0;                // the one of the cell that was pressed last
    MappedType m_editedType = MappedBool; // ... and its row's
    MappingSave m_save{*this, *this};
};

#endif
