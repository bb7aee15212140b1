#include "PartnerTab.h"

#include "Partners.h"
#include "SimulatedController.h"

#include <QCheckBox>
#include <QFormLayout>
#include <QGridLayout>
#include <QGroupBox>
#include <QHeaderView>
#include <QLabel>
#include <QPushButton>
#include <QSignalBlocker>
#include <QSpinBox>
#include <QTableWidget>
#include <QVBoxLayout>

#include <functional>

namespace {

constexpr int HighestPort = 65535;
constexpr int HighestNode = 254;
constexpr int FloodMessages = 1000;
constexpr int HighestCode = 0xffff;
// What the robot reads by its factory settings lies in the middle.
constexpr int FirstShownWord = 996;
constexpr int ShownWords = 12;

// The codes that the FINS server answers with: a fault each, 0 for none.
struct Code
{
    const char* name;
    const char* caption;
    Faults::Fault fault;
};
constexpr Code Codes[] = {
    {"finsErrorCode", QT_TRANSLATE_NOOP("PartnerTab", "Error code"), Faults::FinsErrorCode},
    {"finsEndCode", QT_TRANSLATE_NOOP("PartnerTab", "End code"), Faults::FinsEndCode}};

QTableWidgetItem* itemOf(QTableWidget* table, int row, int column)
{
    if (!table->item(row, column)) {
        auto* item = new QTableWidgetItem;
        item->setFlags(Qt::ItemIsEnabled);
        table->setItem(row, column, item);
    }
    return table->item(row, column);
}

} // namespace

PartnerTab::PartnerTab(SimulatedController& simulated, QWidget* parent)
    : PanelTab(simulated, parent)
    , m_words(new QTableWidget(ShownWords, 2))
    , m_registers(new QTableWidget(0, 3))
{
    auto* grid = new QGridLayout;
    Partners& partners = controller().partners();
    addPartner(grid, &partners.fins(), tr("FINS server"), true);
    addPartner(grid, &partners.mes(), tr("MES client"), false);
    addPartner(grid, &partners.modbusServer(), tr("Modbus TCP server"), true);
    addPartner(grid, &partners.modbusClient(), tr("Modbus TCP client"), false);
    grid->setColumnStretch(2, 1);

    auto* tables = new QHBoxLayout;
    tables->addWidget(makeFinsBox());
    tables->addWidget(makeRegisterBox(), 1);
    auto* layout = new QVBoxLayout(this);
    layout->addWidget(makeActions());
    layout->addLayout(grid);
    layout->addLayout(tables, 1);
    refresh();
}

void PartnerTab::addPartner(QGridLayout* grid, Partner* partner, const QString& caption, bool serves)
{
    const Row row = {partner, new QCheckBox(caption), new QSpinBox, new QLabel};
    row.on->setObjectName(partner->name());
    row.port->setObjectName(partner->name() + QStringLiteral("-port"));
    row.port->setRange(0, HighestPort);
    row.port->setValue(partner->port());
    // Who calls the robot finds the port where the robot has it.
    row.port->setEnabled(serves);
    row.port->setSpecialValueText(serves ? tr("any") : tr("none"));
    connect(row.port, QOverload<int>::of(&QSpinBox::valueChanged), partner, &Partner::setPort);
    connect(row.on, &QCheckBox::toggled, this, [this, partner](bool on) {
        if (on)
            partner->start();
        else
            partner->stop();
        refresh();
    });
    const int line = grid->rowCount();
    grid->addWidget(row.on, line, 0);
    grid->addWidget(row.port, line, 1);
    grid->addWidget(row.state, line, 2);
    m_rows.push_back(row);
}

QWidget* PartnerTab::makeActions()
{
    const struct
    {
        const char* name;
        QString caption;
        std::function<void()> act;
    } actions[] = {
        {"partnersOn", tr("All on, with cables and slaves"), [this] { controller().partners().startAll(); }},
        {"partnersOff", tr("All off"), [this] { controller().partners().stopAll(); }},
        {"mesFlood", tr("MES client: flood"), [this] { controller().partners().mes().flood(FloodMessages); }},
    };
    auto* row = new QWidget;
    auto* layout = new QHBoxLayout(row);
    layout->setContentsMargins(0, 0, 0, 0);
    for (const auto& action : actions) {
        auto* button = new QPushButton(action.caption);
        button->setObjectName(QLatin1String(action.name));
        connect(button, &QPushButton::clicked, this, [this, act = action.act] {
            act();
            refresh();
        });
        layout->addWidget(button);
    }
    layout->addStretch();
    return row;
}

QWidget* PartnerTab::makeFinsBox()
{
    auto* box = new QGroupBox(tr("FINS server"));
    auto* form = new QFormLayout(box);
    auto* node = new QSpinBox;
    node->setObjectName(QStringLiteral("finsNode"));
    node->setRange(1, HighestNode);
    connect(node, QOverload<int>::of(&QSpinBox::valueChanged), this,
            [this](int value) { controller().partners().fins().setNode(value); });
    form->addRow(tr("Its node"), node);
    for (const Code& code : Codes) {
        auto* number = new QSpinBox;
        number->setObjectName(QLatin1String(code.name));
        number->setRange(0, HighestCode);
        number->setDisplayIntegerBase(16);
        number->setPrefix(QStringLiteral("0x"));
        connect(number, QOverload<int>::of(&QSpinBox::valueChanged), this,
                [this, fault = code.fault](int value) {
                    controller().faults().set(fault, value == 0 ? 0 : -1, QString::number(value));
                });
        form->addRow(tr(code.caption), number);
        m_codes.emplace_back(code.fault, number);
    }
    m_words->setObjectName(QStringLiteral("dmWords"));
    m_words->setHorizontalHeaderLabels({tr("DM word"), tr("Value")});
    m_words->verticalHeader()->hide();
    m_words->horizontalHeader()->setStretchLastSection(true);
    for (int row = 0; row < ShownWords; ++row) {
        for (int column = 0; column < 2; ++column)
            m_words->setItem(row, column, new QTableWidgetItem);
        m_words->item(row, 0)->setText(QString::number(FirstShownWord + row));
    }
    connect(m_words, &QTableWidget::itemChanged, this, [this](const QTableWidgetItem* item) {
        if (item->column() == 1)
            takeWord(item->row());
        refresh();
    });
    form->addRow(m_words);
    return box;
}

QWidget* PartnerTab::makeRegisterBox()
{
    m_registers->setObjectName(QStringLiteral("mappedRegisters"));
    m_registers->setHorizontalHeaderLabels({tr("Register"), tr("Variable"), tr("Value")});
    m_registers->verticalHeader()->hide();
    m_registers->horizontalHeader()->setSectionResizeMode(1, QHeaderView::Stretch);
    m_registers->horizontalHeader()->resizeSection(2, 190);
    auto* box = new QGroupBox(tr("Modbus TCP client: the mapped registers"));
    auto* layout = new QVBoxLayout(box);
    layout->addWidget(m_registers);
    return box;
}

void PartnerTab::takeWord(int row)
{
    bool isAddress = false;
    bool isWord = false;
    const int address = m_words->item(row, 0)->text().toInt(&isAddress);
    const quint16 value = m_words->item(row, 1)->text().toUShort(&isWord, 0);
    if (isAddress && isWord)
        controller().partners().fins().setWord(address, value);
}

void PartnerTab::refresh()
{
    for (const Row& row : m_rows) {
        const QSignalBlocker blocker(row.on);
        row.on->setChecked(row.partner->isRunning());
        row.state->setText(row.partner->state());
        // Not under the fingers of somebody who types.
        if (!row.port->hasFocus())
            row.port->setValue(row.partner->port());
    }
    const Faults& faults = controller().faults();
    for (const auto& [fault, number] : m_codes) {
        const int code = faults.isSet(fault) ? faults.numberOf(fault) : 0;
        const QSignalBlocker blocker(number); // a fault that is set for some times is not set for good
        // The same value again would spoil what is being typed.
        if (number->value() != code)
            number->setValue(code);
    }
    const QSignalBlocker blocker(m_words);
    for (int row = 0; row < ShownWords; ++row) {
        bool isAddress = false;
        const int address = m_words->item(row, 0)->text().toInt(&isAddress);
        m_words->item(row, 1)->setText(
            isAddress ? QString::number(controller().partners().fins().word(address)) : QString());
    }
    const auto registers = controller().partners().modbusClient().rows();
    m_registers->setRowCount(static_cast<int>(registers.size()));
    for (int row = 0; row < m_registers->rowCount(); ++row) {
        const auto& shown = registers[static_cast<std::size_t>(row)];
        itemOf(m_registers, row, 0)->setText(QString::number(shown.number));
        itemOf(m_registers, row, 1)->setText(shown.name);
        itemOf(m_registers, row, 2)->setText(shown.value);
    }
}
