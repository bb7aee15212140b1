#include "DeviceTab.h"

#include "NetPortsFile.h"
#include "ProfisafeDevice.h"
#include "SimulatedController.h"

#include <QFormLayout>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QLineEdit>
#include <QSignalBlocker>
#include <QSpinBox>
#include <QTableWidget>
#include <QVBoxLayout>

namespace {
constexpr const char* Ports[] = {"ETH2", "ETH3"};
constexpr int ShownBits = 16;
constexpr ProfisafeDevice::Block Blocks[] = {ProfisafeDevice::Output, ProfisafeDevice::Input};
constexpr int HighestVoltageMode = 3;
} // namespace

DeviceTab::DeviceTab(SimulatedController& simulated, QWidget* parent)
    : PanelTab(simulated, parent)
    , m_feedVoltage(new QSpinBox)
    , m_bits(new QTableWidget(ShownBits, static_cast<int>(std::size(Blocks))))
{
    auto* form = new QFormLayout;
    for (const char* port : Ports)
        addPort(form, QLatin1String(port));
    m_feedVoltage->setObjectName(QStringLiteral("feedVoltage"));
    m_feedVoltage->setRange(0, HighestVoltageMode);
    connect(m_feedVoltage, QOverload<int>::of(&QSpinBox::valueChanged), this,
            [this](int mode) { controller().behaviour<ProfisafeDevice>().setFeedVoltage(mode); });
    form->addRow(tr("ProfiSAFE feed voltage mode"), m_feedVoltage);
    makeBitTable();

    auto* layout = new QVBoxLayout(this);
    layout->addLayout(form);
    layout->addWidget(m_bits);
    refresh();
}

void DeviceTab::addPort(QFormLayout* form, const QString& port)
{
    const PortRow row = {port, new QLineEdit, new QLineEdit};
    row.ip->setObjectName(port + QStringLiteral("Ip"));
    row.netmask->setObjectName(port + QStringLiteral("Netmask"));
    auto* edits = new QHBoxLayout;
    for (QLineEdit* edit : {row.ip, row.netmask}) {
        edits->addWidget(edit);
        connect(edit, &QLineEdit::editingFinished, this, [this, row] {
            writeNetPort(controller().files(), row.port, {row.ip->text(), row.netmask->text()});
        });
    }
    form->addRow(tr("%1: address, netmask").arg(port), edits);
    m_ports.push_back(row);
}

void DeviceTab::makeBitTable()
{
    m_bits->setObjectName(QStringLiteral("profisafeBits"));
    m_bits->setHorizontalHeaderLabels({tr("ProfiSAFE output"), tr("ProfiSAFE input")});
    m_bits->horizontalHeader()->setSectionResizeMode(QHeaderView::Stretch);
    for (int bit = 0; bit < ShownBits; ++bit) {
        m_bits->setVerticalHeaderItem(bit, new QTableWidgetItem(QString::number(bit)));
        for (int column = 0; column < m_bits->columnCount(); ++column) {
            auto* item = new QTableWidgetItem;
            item->setFlags(Qt::ItemIsEnabled | Qt::ItemIsUserCheckable);
            m_bits->setItem(bit, column, item);
        }
    }
    connect(m_bits, &QTableWidget::itemChanged, this, [this](const QTableWidgetItem* item) {
        controller().behaviour<ProfisafeDevice>().setBit(Blocks[item->column()], item->row(),
                                                         item->checkState() == Qt::Checked);
    });
}

void DeviceTab::refresh()
{
    for (const PortRow& row : m_ports) {
        // Not under the fingers of somebody who types.
        if (row.ip->hasFocus() || row.netmask->hasFocus())
            continue;
        const NetPort port = readNetPort(controller().files(), row.port);
        row.ip->setText(port.ip);
        row.netmask->setText(port.netmask);
    }
    const auto& device = controller().behaviour<ProfisafeDevice>();
    const QSignalBlocker blockVoltage(m_feedVoltage);
    m_feedVoltage->setValue(device.feedVoltage());
    const QSignalBlocker blockBits(m_bits);
    for (int bit = 0; bit < ShownBits; ++bit) {
        for (int column = 0; column < m_bits->columnCount(); ++column)
            m_bits->item(bit, column)
                ->setCheckState(device.bit(Blocks[column], bit) ? Qt::Checked : Qt::Unchecked);
    }
}
