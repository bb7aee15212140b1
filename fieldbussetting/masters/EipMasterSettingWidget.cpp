#include "EipMasterSettingWidget.h"

#include <QAbstractButton>

const MasterTablePage::Master& EipMasterSettingWidget::master()
{
    static const Master description = {
        "EipMasterSettingWidget",
        QT_TRANSLATE_NOOP("EipMasterSettingWidget", "EthernetIP Master Setting"),
        "saveBt_EipM",
        "eipMTableWidget",
        "dynalm_checkbox_",
        {"fixeip_checkbox_%1", "dyneip_checkbox_%1", "eipConnectStatLb_%1", "eipCouplingStatLb_%1",
         "eipDecouplingStatLb_%1"},
        &FieldbusSettingLib::eipMasterOverride,
        &FieldbusSettingLib::readEipMFile,
        &FieldbusSettingLib::writeEipMFile,
        &FieldbusSettingLib::eipMaster,
        ConfigFile::EipMaster,
        &FieldbusSettingLib::readEimXMLFile,
        &FieldbusSettingLib::writeEimXMLFile,
        {MsgBox::Error, QT_TRANSLATE_NOOP("EipMasterSettingWidget", "Failed to get eip_master.xml file."),
         QT_TRANSLATE_NOOP("EipMasterSettingWidget", "Failed to read eip_master.xml file."),
         QT_TRANSLATE_NOOP("EipMasterSettingWidget", "Failed to write eip_master.xml file."),
         QT_TRANSLATE_NOOP("EipMasterSettingWidget", "Failed to send eip_master.xml file.")},
        &FieldbusSettingLib::get_ifidbus_eim_status,
        &FieldbusSettingLib::get_ifidbus_eim_enable_status,
        &FieldbusSettingLib::get_ifidbus_eim_disable_status,
        &FieldbusSettingLib::get_ifidbus_dynamic_eim_enable,
        &FieldbusSettingLib::set_ifidbus_dynamic_eim_enable,
        SaveWhen::RestartAllowed,
        false,
    };
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
