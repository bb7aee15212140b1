#include "FaultTab.h"

#include "SimulatedController.h"

#include <QHeaderView>
#include <QLabel>
#include <QPushButton>
#include <QSignalBlocker>
#include <QTableWidget>
#include <QVBoxLayout>

namespace {
enum Column { FaultColumn, MeaningColumn, TimesColumn, TargetColumn, ColumnCount };
// A cell that takes a target tells what it is to be.
QString hintOf(Faults::Fault fault)
{
    const QString target = Faults::targetMeaningOf(fault);
    return target.isEmpty() ? FaultTab::tr("takes no target") : target;
}
} // namespace

FaultTab::FaultTab(SimulatedController& simulated, QWidget* parent)
    : PanelTab(simulated, parent)
    , m_table(new QTableWidget(Faults::FaultCount, ColumnCount))
{
    m_table->setObjectName(QStringLiteral("faultTable"));
    m_table->setHorizontalHeaderLabels({tr("Fault"), tr("What it does"), tr("Times"), tr("Target")});
    m_table->verticalHeader()->hide();
    m_table->horizontalHeader()->setSectionResizeMode(MeaningColumn, QHeaderView::Stretch);
    m_table->horizontalHeader()->setSectionResizeMode(FaultColumn, QHeaderView::ResizeToContents);
    m_table->horizontalHeader()->resizeSection(TimesColumn, 60);
    m_table->horizontalHeader()->resizeSection(TargetColumn, 160);
    for (int row = 0; row < Faults::FaultCount; ++row) {
        const auto fault = static_cast<Faults::Fault>(row);
        const QString texts[ColumnCount] = {Faults::nameOf(fault), Faults::meaningOf(fault), {}, {}};
        for (int column = 0; column < ColumnCount; ++column) {
            auto* item = new QTableWidgetItem(texts[column]);
            item->setToolTip(column == TargetColumn ? hintOf(fault) : Faults::meaningOf(fault));
            if (column < TimesColumn)
                item->setFlags(Qt::ItemIsEnabled);
            m_table->setItem(row, column, item);
        }
    }
    refresh();
    connect(m_table, &QTableWidget::itemChanged, this, &FaultTab::takeEdit);

    auto* clear = new QPushButton(tr("Clear all"));
    clear->setObjectName(QStringLiteral("clearFaults"));
    connect(clear, &QPushButton::clicked, this, [this] {
        controller().faults().clearAll();
        refresh();
    });
    auto* layout = new QVBoxLayout(this);
    layout->addWidget(
        new QLabel(tr("Times: -1 always, 0 never. Target: whom alone it hits, or its number.")));
    layout->addWidget(m_table);
    layout->addWidget(clear, 0, Qt::AlignRight);
}

void FaultTab::takeEdit(const QTableWidgetItem* item)
{
    const auto text = [this, item](int column) { return m_table->item(item->row(), column)->text(); };
    bool isNumber = false;
    text(TimesColumn).toInt(&isNumber);
    // What is refused, as a target that is no number where one is wanted, shows in the times that stay.
    if (isNumber)
        controller().faults().setFromText(
            QStringList{text(FaultColumn), text(TimesColumn), text(TargetColumn)}.join(QLatin1Char(':')));
    refresh();
}

void FaultTab::refresh()
{
    const QSignalBlocker blocker(m_table);
    const Faults& faults = controller().faults();
    for (int row = 0; row < m_table->rowCount(); ++row) {
        const auto fault = static_cast<Faults::Fault>(row);
        m_table->item(row, TimesColumn)->setText(QString::number(faults.timesLeft(fault)));
        // A target may be typed before the fault is set.
        if (faults.isSet(fault))
            m_table->item(row, TargetColumn)->setText(faults.targetOf(fault));
    }
}
