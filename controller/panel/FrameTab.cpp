#include "FrameTab.h"

#include "FrameFields.h"
#include "Pcap.h"
#include "SimulatedController.h"

#include <QCheckBox>
#include <QComboBox>
#include <QFileDialog>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QPushButton>
#include <QSaveFile>
#include <QSignalBlocker>
#include <QTableWidget>
#include <QVBoxLayout>

#include <algorithm>
#include <optional>
#include <utility>

namespace {

enum Column { TimeColumn, WireColumn, WayColumn, SizeColumn, SummaryColumn, ColumnCount };

QTableWidget* makeTable(const QString& name, const QStringList& captions)
{
    auto* table = new QTableWidget(0, captions.size());
    table->setObjectName(name);
    table->setHorizontalHeaderLabels(captions);
    table->verticalHeader()->hide();
    table->setEditTriggers(QTableWidget::NoEditTriggers);
    table->setSelectionBehavior(QTableWidget::SelectRows);
    table->horizontalHeader()->setStretchLastSection(true);
    return table;
}

void setRow(QTableWidget* table, int row, const QStringList& texts)
{
    for (int column = 0; column < texts.size(); ++column)
        table->setItem(row, column, new QTableWidgetItem(texts[column]));
    // The last one may be wider than its column.
    table->item(row, texts.size() - 1)->setToolTip(texts.constLast());
}

bool isSame(const LoggedFrame& one, const LoggedFrame& other)
{
    return one.time == other.time && one.wire == other.wire && one.received == other.received &&
           one.partnerPort == other.partnerPort && one.bytes == other.bytes;
}

} // namespace

FrameTab::FrameTab(SimulatedController& simulated, QWidget* parent)
    : PanelTab(simulated, parent)
    , m_filter(new QComboBox)
    , m_pause(new QCheckBox(tr("Pause")))
    , m_frames(makeTable(QStringLiteral("frameTable"),
                         {tr("Time"), tr("Protocol"), tr("From and to"), tr("Bytes"), tr("What")}))
    , m_fields(makeTable(QStringLiteral("fieldTable"), {tr("At"), tr("Bytes"), tr("What"), tr("Value")}))
{
    const int widths[] = {130, 90, 240, 60};
    for (int column = 0; column < SummaryColumn; ++column)
        m_frames->horizontalHeader()->resizeSection(column, widths[column]);
    m_fields->horizontalHeader()->resizeSection(2, 240);
    connect(m_frames, &QTableWidget::itemSelectionChanged, this, [this] {
        const int row = m_frames->currentRow();
        if (row >= 0 && row < m_shown.size())
            show(m_shown[row]);
    });
    auto* layout = new QVBoxLayout(this);
    layout->addLayout(makeButtons());
    layout->addWidget(m_frames, 3);
    layout->addWidget(m_fields, 2);
    refresh();
}

QLayout* FrameTab::makeButtons()
{
    m_filter->setObjectName(QStringLiteral("frameFilter"));
    m_filter->addItem(tr("All protocols"));
    for (int wire = 0; wire < Wire::Count; ++wire)
        m_filter->addItem(QLatin1String(Wire::of(static_cast<Wire::Id>(wire)).name));
    m_pause->setObjectName(QStringLiteral("pauseFrames"));
    auto* save = new QPushButton(tr("Save as capture ..."));
    auto* clear = new QPushButton(tr("Clear"));
    connect(m_filter, QOverload<int>::of(&QComboBox::currentIndexChanged), this, &FrameTab::refresh);
    connect(save, &QPushButton::clicked, this, &FrameTab::askAndSave);
    connect(clear, &QPushButton::clicked, this, [this] {
        controller().frames().clear();
        m_taken.clear();
        refresh();
    });
    auto* buttons = new QHBoxLayout;
    buttons->addWidget(m_filter);
    buttons->addWidget(m_pause);
    buttons->addStretch();
    buttons->addWidget(save);
    buttons->addWidget(clear);
    return buttons;
}

void FrameTab::refresh()
{
    if (!m_pause->isChecked())
        m_taken = controller().frames().frames();
    QVector<LoggedFrame> wanted;
    for (const LoggedFrame& frame : m_taken) {
        if (m_filter->currentIndex() == 0 || m_filter->currentIndex() == frame.wire + 1)
            wanted.append(frame);
    }
    if (std::equal(wanted.begin(), wanted.end(), m_shown.begin(), m_shown.end(), isSame))
        return;
    std::optional<LoggedFrame> chosen;
    if (!m_frames->selectedItems().isEmpty() && m_frames->currentRow() < m_shown.size())
        chosen = m_shown[m_frames->currentRow()];
    m_shown = std::move(wanted);
    fill();
    // The frame that was chosen stays chosen in its new row; with none, or when it is gone, the newest is
    // shown.
    const auto* const kept =
        std::find_if(m_shown.cbegin(), m_shown.cend(),
                     [&chosen](const LoggedFrame& frame) { return chosen && isSame(frame, *chosen); });
    const QSignalBlocker blocker(m_frames);
    m_frames->clearSelection();
    if (kept != m_shown.cend()) {
        m_frames->selectRow(static_cast<int>(kept - m_shown.cbegin()));
        return;
    }
    m_frames->scrollToBottom();
    m_fields->setRowCount(0);
    if (!m_shown.isEmpty())
        show(m_shown.constLast());
}

void FrameTab::fill()
{
    const QSignalBlocker blocker(m_frames); // a selection that loses its row chooses no other
    m_frames->setRowCount(m_shown.size());
    for (int row = 0; row < m_shown.size(); ++row) {
        const LoggedFrame& frame = m_shown[row];
        setRow(m_frames, row,
               {frame.time.toString(QStringLiteral("hh:mm:ss.zzz")), QLatin1String(Wire::of(frame.wire).name),
                (frame.received ? tr("robot:%1 from :%2") : tr("robot:%1 to :%2"))
                    .arg(frame.controllerPort)
                    .arg(frame.partnerPort),
                QString::number(frame.bytes.size()), summaryOf(frame)});
    }
}

void FrameTab::show(const LoggedFrame& frame)
{
    const std::vector<FrameField> fields = fieldsOf(frame);
    m_fields->setRowCount(static_cast<int>(fields.size()));
    for (int row = 0; row < m_fields->rowCount(); ++row) {
        const FrameField& field = fields[static_cast<std::size_t>(row)];
        setRow(m_fields, row,
               {QString::number(field.offset),
                QString::fromLatin1(frame.bytes.mid(field.offset, field.size).toHex(' ')), field.name,
                field.value});
    }
}

bool FrameTab::save(const QString& path) const
{
    QSaveFile file(path);
    const QByteArray bytes = pcapOf(m_shown);
    return file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size() && file.flush() &&
           file.commit();
}

void FrameTab::askAndSave()
{
    const QString path = QFileDialog::getSaveFileName(this, tr("Save as capture"),
                                                      QStringLiteral("robot.pcap"), tr("Captures (*.pcap)"));
    if (!path.isEmpty() && !save(path))
        controller().traffic().addNote(tr("%1 cannot be written").arg(path));
}
