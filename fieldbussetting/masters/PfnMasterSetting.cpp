#include "PfnMasterSetting.h"

#include <QAbstractButton>

const MasterTablePage::Master& PfnMasterSetting::master()
{
    static const Master description = [] {
        Master pnm{};
        pnm.className = "PfnMasterSetting";
        pnm.title = QT_TRANSLATE_NOOP("PfnMasterSetting", "Profinet Master Setting");
        pnm.saveButton = "btn_save";
        pnm.deviceTable = "pfnMasterTableWdt";
        pnm.dynamicAlarmBox = "dynalm_checkbox";
        pnm.rowNames.fixed = "fix_checkbox_%1";
        pnm.rowNames.dynamic = "dyn_checkbox_%1";
        pnm.rowNames.connected = "connectStatLb_%1";
        pnm.rowNames.coupling = "couplingStatLb_%1";
        pnm.rowNames.decoupling = "decouplingStatLb_%1";
        pnm.devices = &FieldbusSettingLib::pfnMasterOverride;
        pnm.readDevices = &FieldbusSettingLib::readPnmFile;
        pnm.writeDevices = &FieldbusSettingLib::writePnmFile;
        pnm.slaves = &FieldbusSettingLib::pfnMaster;
        pnm.slaveFile = ConfigFile::PfnMaster;
        pnm.readSlaves = &FieldbusSettingLib::readPnmXMLFile;
        pnm.writeSlaves = &FieldbusSettingLib::writePnmXMLFile;
        // The texts name another file than the one that is written; they have always read so.
        pnm.slaveTexts = {MsgBox::Error,
                          QT_TRANSLATE_NOOP("PfnMasterSetting", "Failed to get pfn_master.xml file."),
                          QT_TRANSLATE_NOOP("PfnMasterSetting", "Failed to read pfn_master.xml file."),
                          QT_TRANSLATE_NOOP("PfnMasterSetting", "Failed to write pnm_master.xml file."),
                          QT_TRANSLATE_NOOP("PfnMasterSetting", "Failed to send pnm_master.xml file.")};
        pnm.connected = &FieldbusSettingLib::get_ifidbus_pnm_status;
        pnm.coupling = &FieldbusSettingLib::get_ifidbus_pnm_enable_status;
        pnm.decoupling = &FieldbusSettingLib::get_ifidbus_pnm_disable_status;
        pnm.dynamicAlarm = &FieldbusSettingLib::get_ifidbus_dynamic_pnm_enable;
        pnm.setDynamicAlarm = &FieldbusSettingLib::set_ifidbus_dynamic_pnm_enable;
        pnm.saveWhen = SaveWhen::ServoOff;
        pnm.yieldsToProfisafe = true;
        return pnm;
    }();
    return description;
}

PfnMasterSetting::PfnMasterSetting()
    : MasterTablePage(master())
{
    connect(saveButton(), &QAbstractButton::clicked, this, &PfnMasterSetting::on_btn_save_clicked);
    connect(dynamicAlarmBox(), &QAbstractButton::clicked, this,
            &PfnMasterSetting::on_dynalm_checkbox_clicked);
}

void PfnMasterSetting::on_btn_save_clicked()
{
    save();
}

void PfnMasterSetting::on_dynalm_checkbox_clicked()
{
    switchDynamicAlarm();
}
