#include "StatusItem.h"

#include <QEvent>
#include <QGridLayout>
#include <QLabel>
#include <QStyle>
#include <QVariant>

namespace {
constexpr int IconSize = 40;
} // namespace

StatusItem::StatusItem(const char* caption, QWidget* parent)
    : QWidget(parent)
    , m_caption(caption)
    , m_icon(new QLabel(this))
    , m_name(new QLabel(tr(caption), this))
    , m_value(new QLabel(this))
{
    auto* layout = new QGridLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setHorizontalSpacing(10);
    layout->setVerticalSpacing(0);
    layout->setColumnStretch(1, 1);

    m_icon->setFixedSize(IconSize, IconSize);
    m_icon->setScaledContents(true);
    layout->addWidget(m_icon, 0, 0, 2, 1);

    m_name->setObjectName(QStringLiteral("statusCaption"));
    layout->addWidget(m_name, 0, 1, Qt::AlignBottom);
    m_value->setObjectName(QStringLiteral("statusValue"));
    layout->addWidget(m_value, 1, 1, Qt::AlignTop);
}

void StatusItem::changeEvent(QEvent* event)
{
    if (event->type() == QEvent::LanguageChange && m_reading.word) {
        m_name->setText(tr(m_caption));
        show(m_reading);
    }
    QWidget::changeEvent(event);
}

void StatusItem::show(const Reading& reading)
{
    m_reading = reading;
    const QString text = QStringLiteral("%1 %2").arg(QString::fromUtf8(reading.shape), tr(reading.word));
    if (text == m_value->text())
        return;
    m_icon->setVisible(reading.icon);
    if (reading.icon)
        m_icon->setPixmap(QPixmap(QStringLiteral(":/host/%1.png").arg(QLatin1String(reading.icon))));
    m_value->setText(text);
    m_value->setProperty("look", QString::fromLatin1(reading.look));
    m_value->style()->unpolish(m_value);
    m_value->style()->polish(m_value);
}

QString StatusItem::text() const
{
    return m_value->text();
}
