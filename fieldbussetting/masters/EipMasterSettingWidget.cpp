#include "EipMasterSettingWidget.h"

#include <QAbstractButton>

const MasterTablePage::Master& EipMasterSettingWidget::master()
{
    static const Master description = [] {
        Master eim{};
        eim.className = "EipMasterSettingWidget";
        eim.title = QT_TRANSLATE_NOOP("EipMasterSettingWidget", "EthernetIP Master Setting");
        eim.saveButton = "saveBt_EipM";
        eim.deviceTable = "eipMTableWidget";
        eim.dynamicAlarmBox = "dynalm_checkbox_";
        eim.rowNames.fixed = "fixeip_checkbox_%1";
        eim.rowNames.dynamic = "dyneip_checkbox_%1";
        eim.rowNames.connected = "eipConnectStatLb_%1";
        eim.rowNames.coupling = "eipCouplingStatLb_%1";
        eim.rowNames.decoupling = "eipDecouplingStatLb_%1";
        eim.devices = &FieldbusSettingLib::eipMasterOverride;
        eim.readDevices = &FieldbusSettingLib::readEipMFile;
        eim.writeDevices = &FieldbusSettingLib::writeEipMFile;
        eim.slaves = &FieldbusSettingLib::eipMaster;
        eim.slaveFile = ConfigFile::EipMaster;
        eim.readSlaves = &FieldbusSettingLib::readEimXMLFile;
        eim.writeSlaves = &FieldbusSettingLib::writeEimXMLFile;
        eim.slaveTexts = {MsgBox::Error,
                          QT_TRANSLATE_NOOP("EipMasterSettingWidget", "Failed to get eip_master.xml file."),
                          QT_TRANSLATE_NOOP("EipMasterSettingWidget", "Failed to read eip_master.xml file."),
                          QT_TRANSLATE_NOOP("EipMasterSettingWidget", "Failed to write eip_master.xml file."),
                          QT_TRANSLATE_NOOP("EipMasterSettingWidget", "Failed to send eip_master.xml file.")};
        eim.connected = &FieldbusSettingLib::get_ifidbus_eim_status;
        eim.coupling = &FieldbusSettingLib::get_ifidbus_eim_enable_status;
        eim.decoupling = &FieldbusSettingLib::get_ifidbus_eim_disable_status;
        eim.dynamicAlarm = &FieldbusSettingLib::get_ifidbus_dynamic_eim_enable;
        eim.setDynamicAlarm = &FieldbusSettingLib::set_ifidbus_dynamic_eim_enable;
        eim.saveWhen = SaveWhen::RestartAllowed;
        eim.yieldsToProfisafe = false;
        return eim;
    }();
    return description;
}

EipMasterSettingWidget::EipMasterSettingWidget()
    : MasterTablePage(master())
{
    connect(saveButton(), &QAbstractButton::clicked, this, &EipMasterSettingWidget::on_saveBt_EipM_clicked);
    connect(dynamicAlarmBox(), &QAbstractButton::clicked, this,
            &EipMasterSettingWidget::on_dynalm_checkbox__clicked);
}

void EipMasterSettingWidget::on_saveBt_EipM_clicked()
{
    save();
}

void EipMasterSettingWidget::on_dynalm_checkbox__clicked()
{
    switchDynamicAlarm();
}
