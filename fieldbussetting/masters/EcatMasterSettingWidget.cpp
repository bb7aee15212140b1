#include "EcatMasterSettingWidget.h"

#include "ui_EcatMasterSettingWidget.h"

namespace {

bool writeRecord(const QString& localPath)
{
    return FieldbusSettingLib::getInstance()->writeEtherCatMFile(localPath,
                                                                 static_cast<int>(OverrideMode::WriteRecord));
}

// Whether the servo is on does not matter here: what is saved takes effect with a restart only.
const FunctionTable::Section& section()
{
    static const FunctionTable::Section master = {
        &FieldbusSettingLib::etherCatMasterOverride,
        &FieldbusSettingLib::readEtherCatMFile,
        writeRecord,
        PageBase::SaveWhen::RestartAllowed,
    };
    return master;
}

} // namespace

EcatMasterSettingWidget::EcatMasterSettingWidget()
    : PageBase("EcatMasterSettingWidget")
    , ui(std::make_unique<Ui::EcatMasterSettingWidget>())
{
    ui->setupUi(this);
    m_functions.emplace(this, ui->ecatTableWidget, section());
    applyStyle();
    scheduleOnce(0, &EcatMasterSettingWidget::slotGetFileToUi);
}

EcatMasterSettingWidget::~EcatMasterSettingWidget() = default;
