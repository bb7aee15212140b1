#include "MasterSlaveList.h"

#include <QCoreApplication>
#include <QGridLayout>
#include <QLabel>
#include <QScrollArea>
#include <QScrollBar>

namespace {

constexpr int RowSpacing = 8; // pixels
constexpr int CaptionLines = 2;

struct Caption
{
    const char* name;
    const char* text;
};

// A caption a column.
constexpr std::array<Caption, MasterSlaveRow::ColumnCount> Captions = {{
    {"label_conneted", QT_TRANSLATE_NOOP("MasterSlaveList", "Number")},
    {"label_conneted_2", QT_TRANSLATE_NOOP("MasterSlaveList", "Fixed  Status")},
    {"label_conneted_3", QT_TRANSLATE_NOOP("MasterSlaveList", " Dynamic Status")},
    {"label_conneted_4", QT_TRANSLATE_NOOP("MasterSlaveList", " Connected Status")},
    {"label_conneted_5", QT_TRANSLATE_NOOP("MasterSlaveList", "Coupling Status")},
    {"label_conneted_6", QT_TRANSLATE_NOOP("MasterSlaveList", "Decoupling Status")},
}};

enum { FixedColumn = 1, DynamicColumn };

QString captionOf(std::size_t column)
{
    return QCoreApplication::translate("MasterSlaveList", Captions.at(column).text);
}

QString boxName(std::size_t column, int number)
{
    return QStringLiteral("%1 %2").arg(captionOf(column).simplified()).arg(number);
}

} // namespace

MasterSlaveList::MasterSlaveList(const MasterSlaveRow::Names& names, QWidget* parent)
    : QWidget(parent)
    , m_captions(new QWidget(this))
    , m_scroll(new QScrollArea(this))
{
    auto* lines = new QVBoxLayout(this);
    lines->setContentsMargins(0, 0, 0, 0);
    lines->addWidget(m_captions);
    lines->addWidget(m_scroll, 1);
    const MasterSlaveRow::Widths widths = addCaptions();

    auto* content = new QWidget;
    content->setObjectName(QStringLiteral("slavePositions"));
    auto* rows = new QVBoxLayout(content);
    rows->setContentsMargins(0, 0, 0, 0);
    rows->setSpacing(RowSpacing);
    for (int number = 1; number <= PositionCount; ++number) {
        m_rows.push_back(new MasterSlaveRow(number, names, widths, content));
        m_rows.back()->nameBoxes(boxName(FixedColumn, number), boxName(DynamicColumn, number));
        rows->addWidget(m_rows.back());
    }
    m_scroll->setFocusPolicy(Qt::NoFocus);
    m_scroll->setWidgetResizable(true);
    m_scroll->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    m_scroll->setWidget(content);
    // The captions stay above their columns when the scroll bar comes.
    QScrollBar* bar = m_scroll->verticalScrollBar();
    connect(bar, &QScrollBar::rangeChanged, m_captions, [this, bar](int /*minimum*/, int maximum) {
        m_captions->layout()->setContentsMargins(0, 0, maximum > 0 ? bar->sizeHint().width() : 0, 0);
    });
    setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Maximum);
    setCount(0);
}

MasterSlaveRow::Widths MasterSlaveList::addCaptions()
{
    MasterSlaveRow::Widths widths{};
    QGridLayout* columns = MasterSlaveRow::makeColumns(m_captions, widths);
    for (std::size_t column = 0; column < Captions.size(); ++column) {
        auto* caption = new QLabel(captionOf(column), m_captions);
        caption->setObjectName(QLatin1String(Captions[column].name));
        caption->setAlignment(Qt::AlignCenter);
        caption->setWordWrap(true);
        caption->ensurePolished();
        widths[column] = caption->minimumSizeHint().width();
        columns->addWidget(caption, 0, static_cast<int>(column));
    }
    m_captions->setMinimumHeight(CaptionLines * m_captions->fontMetrics().lineSpacing());
    return widths;
}

void MasterSlaveList::setCount(int count)
{
    for (int index = 0; index < PositionCount; ++index)
        row(index).setVisible(index < count);
    m_count = count;
    updateGeometry();
}

// The scroll area's own hint does not follow the rows.
QSize MasterSlaveList::sizeHint() const
{
    const int rows = m_count * (MasterSlaveRow::Height + RowSpacing);
    return {QWidget::sizeHint().width(), m_captions->minimumHeight() + layout()->spacing() + rows};
}

void MasterSlaveList::fill(const MasterSlaveTable& record)
{
    for (MasterSlaveRow* row : m_rows)
        row->fill(record);
}

void MasterSlaveList::store(MasterSlaveTable& record) const
{
    for (const MasterSlaveRow* row : m_rows)
        row->store(record);
}
