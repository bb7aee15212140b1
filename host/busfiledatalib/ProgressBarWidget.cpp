#include "ProgressBarWidget.h"

#include "ZelFunctions.h"

#include <QLabel>
#include <QProgressBar>
#include <QVBoxLayout>

namespace {
constexpr int Width = 480;
constexpr int Height = 96;
} // namespace

ProgressBarWidget::ProgressBarWidget(QWidget* parent)
    : QWidget(parent, Qt::Window | Qt::FramelessWindowHint)
    , m_bar(new QProgressBar(this))
{
    // It appears beside the application and must not take the focus from it.
    setAttribute(Qt::WA_ShowWithoutActivating);
    setAttribute(Qt::WA_StyledBackground);
    ZelSetUIStyleSheet(this, QStringLiteral("host"));
    setFixedSize(Width, Height);

    auto* text = new QLabel(tr("Loading"), this);
    text->setObjectName(QStringLiteral("label_text"));
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(20, 12, 20, 14);
    layout->addWidget(text);
    layout->addWidget(m_bar);
}

void ProgressBarWidget::setRange(int minimum, int maximum)
{
    m_bar->setRange(minimum, maximum);
}

void ProgressBarWidget::setValue(int value)
{
    m_bar->setValue(value);
}

int ProgressBarWidget::value() const
{
    return m_bar->value();
}
