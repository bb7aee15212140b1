#include "PfnMasterSetting.h"

#include <QAbstractButton>

const MasterTablePage::Master& PfnMasterSetting::master()
{
    static const Master description = {
        "PfnMasterSetting",
        QT_TRANSLATE_NOOP("PfnMasterSetting", "Profinet Master Setting"),
        "btn_save",
        "pfnMasterTableWdt",
        "dynalm_checkbox",
        {"fix_checkbox_%1", "dyn_checkbox_%1", "connectStatLb_%1", "couplingStatLb_%1",
         "decouplingStatLb_%1"},
        &FieldbusSettingLib::pfnMasterOverride,
        &FieldbusSettingLib::readPnmFile,
        &FieldbusSettingLib::writePnmFile,
        &FieldbusSettingLib::pfnMaster,
        ConfigFile::PfnMaster,
        &FieldbusSettingLib::readPnmXMLFile,
        &FieldbusSettingLib::writePnmXMLFile,
        // The texts name another file than the one that is written; they have always read so.
        {MsgBox::Error, QT_TRANSLATE_NOOP("PfnMasterSetting", "Failed to get pfn_master.xml file."),
         QT_TRANSLATE_NOOP("PfnMasterSetting", "Failed to read pfn_master.xml file."),
         QT_TRANSLATE_NOOP("PfnMasterSetting", "Failed to write pnm_master.xml file."),
         QT_TRANSLATE_NOOP("PfnMasterSetting", "Failed to send pnm_master.xml file.")},
        &FieldbusSettingLib::get_ifidbus_pnm_status,
        &FieldbusSettingLib::get_ifidbus_pnm_enable_status,
        &FieldbusSettingLib::get_ifidbus_pnm_disable_status,
        &FieldbusSettingLib::get_ifidbus_dynamic_pnm_enable,
        &FieldbusSettingLib::set_ifidbus_dynamic_pnm_enable,
        SaveWhen::ServoOff,
        true,
    };
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
