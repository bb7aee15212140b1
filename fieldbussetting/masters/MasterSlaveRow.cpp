#include "MasterSlaveRow.h"

#include "EditWatch.h"
#include "TouchCheckBox.h"

#include <QGridLayout>
#include <QLabel>

namespace {

constexpr int ColumnSpacing = 8; // pixels

StatusLight::State phaseState(int phase, StatusLight::State failed)
{
    switch (phase) {
    case 0:
        return StatusLight::Grey;
    case 1:
        return StatusLight::Green;
    default:
        return failed;
    }
}

} // namespace

QGridLayout* MasterSlaveRow::makeColumns(QWidget* owner, const Widths& widths)
{
    auto* columns = new QGridLayout(owner);
    columns->setContentsMargins(0, 0, 0, 0);
    columns->setHorizontalSpacing(ColumnSpacing);
    int column = 0;
    for (const int width : widths) {
        columns->setColumnMinimumWidth(column, width);
        columns->setColumnStretch(column++, 1);
    }
    return columns;
}

MasterSlaveRow::MasterSlaveRow(int number, const Names& names, const Widths& widths, QWidget* parent)
    : QWidget(parent)
    , m_position(MasterSlaveTable::positions()[static_cast<std::size_t>(number - 1)])
    , m_fixed(new TouchCheckBox(this))
    , m_dynamic(new TouchCheckBox(this))
    , m_connected(new QLabel(this))
    , m_coupling(new QLabel(this))
    , m_decoupling(new QLabel(this))
{
    setFixedHeight(Height);
    auto* numberLabel = new QLabel(QString::number(number), this);
    const struct
    {
        const char* name;
        QWidget* widget;
    } cells[] = {
        {"label_num%1", numberLabel},         {names.fixed, m_fixed},
        {names.dynamic, m_dynamic},           {names.connected, m_connected.label()},
        {names.coupling, m_coupling.label()}, {names.decoupling, m_decoupling.label()},
    };
    QGridLayout* columns = makeColumns(this, widths);
    int column = 0;
    for (const auto& cell : cells) {
        cell.widget->setObjectName(QString::fromLatin1(cell.name).arg(number));
        columns->addWidget(cell.widget, 0, column++, Qt::AlignCenter);
    }
}

void MasterSlaveRow::nameBoxes(const QString& fixed, const QString& dynamic)
{
    m_fixed->setAccessibleName(fixed);
    m_dynamic->setAccessibleName(dynamic);
}

void MasterSlaveRow::fill(const MasterSlaveTable& record)
{
    m_fixed->setChecked(record.*m_position.fixed);
    m_dynamic->setChecked(record.*m_position.dynamic);
}

void MasterSlaveRow::store(MasterSlaveTable& record) const
{
    record.*m_position.fixed = m_fixed->isChecked();
    record.*m_position.dynamic = m_dynamic->isChecked();
}

void MasterSlaveRow::watch(EditWatch& edits) const
{
    edits.add(m_fixed);
    edits.add(m_dynamic);
}

void MasterSlaveRow::showConnected(bool connected)
{
    m_connected.show(connected ? StatusLight::Green : StatusLight::Red);
}

// A slave that does not couple is a fault; one that does not let go is only worth a warning.
void MasterSlaveRow::showPhases(int coupling, int decoupling)
{
    m_coupling.show(phaseState(coupling, StatusLight::Red));
    m_decoupling.show(phaseState(decoupling, StatusLight::Warning));
}
