#include "MtcpSlaveSetting.h"

#include "ui_MtcpSlaveSetting.h"

namespace {
constexpr int ModbusTcpBus = 0;
} // namespace

MtcpSlaveSetting::MtcpSlaveSetting()
    : PageBase("MtcpSlaveSetting")
    , ui(std::make_unique<Ui::MtcpSlaveSetting>())
{
    ui->setupUi(this);
    m_performanceBox.emplace(ui->cBox, ModbusTcpBus);
    applyStyle();
    m_performanceBox->load();
}

MtcpSlaveSetting::~MtcpSlaveSetting() = default;

void MtcpSlaveSetting::showEvent(QShowEvent* event)
{
    m_performanceBox->pageShown();
    PageBase::showEvent(event);
}

void MtcpSlaveSetting::on_cBox_clicked(bool checked)
{
    m_performanceBox->clicked(checked);
}
