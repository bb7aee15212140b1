#include "ZelBaseWidget.h"

#include <QPainter>
#include <QVariant>

ZelBaseWidget::ZelBaseWidget(BaseZelWidgetData* applicationData, QWidget* parent, Qt::WindowFlags flags)
    : QWidget(parent, flags)
    , m_data(applicationData)
{
    setAttribute(Qt::WA_StyledBackground);
}

ZelBaseWidget::~ZelBaseWidget()
{
    delete m_central.data();
}

void ZelBaseWidget::setCentralWidget(QWidget* widget)
{
    if (widget == m_central)
        return;
    if (m_central && m_central->parentWidget() == this)
        m_central->setParent(nullptr);
    m_central = widget;
    if (!widget)
        return;
    // A page that hides itself until it has its data stays hidden.
    const bool keepHidden = widget->isHidden() && widget->testAttribute(Qt::WA_WState_ExplicitShowHide);
    widget->setParent(this);
    widget->setGeometry(rect());
    widget->setVisible(!keepHidden);
}

QWidget* ZelBaseWidget::getCentralWidget() const
{
    return m_central;
}

void ZelBaseWidget::resizeEvent(QResizeEvent* event)
{
    QWidget::resizeEvent(event);
    if (m_central)
        m_central->setGeometry(rect());
}

void ZelBaseWidget::slotKeyPressed(int /*key*/) {}

void ZelBaseWidget::drawText(QPainter* painter, const QRect& area, const QString& text)
{
    painter->drawText(area, Qt::AlignCenter | Qt::TextWordWrap, text);
}

void ZelBaseWidget::drawText(QPainter* painter, const QPoint& position, const QString& text)
{
    painter->drawText(position, text);
}

void ZelBaseWidget::drawImage(QPainter* painter, const QRect& area, const QString& image)
{
    painter->drawPixmap(area, QPixmap(image));
}

void ZelBaseWidget::drawBorder(QPainter* painter, const QRect& area)
{
    painter->drawRect(area.adjusted(0, 0, -1, -1));
}

bool ZelBaseWidget::canBeDeleted() const
{
    return true;
}

bool ZelBaseWidget::setUsedVars(int /*context*/, bool /*used*/)
{
    return true;
}

bool ZelBaseWidget::isTransparent() const
{
    return false;
}

QVariant ZelBaseWidget::property(const QString& name) const
{
    return QObject::property(name.toUtf8().constData());
}

// A desktop has no project whose variables could be missing; 0 stands for none.
bool ZelBaseWidget::setUsedVar(int id, bool /*used*/, unsigned /*kind*/)
{
    return id != 0;
}

bool ZelBaseWidget::setUsedEvent(int id, bool /*used*/)
{
    return id != 0;
}

void ZelBaseWidget::zelMousePressEvent(QMouseEvent* /*event*/) {}

void ZelBaseWidget::zelMouseReleaseEvent(QMouseEvent* /*event*/) {}
