#ifndef ZELCORE_ZELBASEWIDGET_H
#define ZELCORE_ZELBASEWIDGET_H

#include <QPointer>
#include <QWidget>

class BaseZelWidgetData;
class QPainter;

/// Top-level widget of an application. The host constructs it through the plug-in's factory, owns it,
/// and calls its slots `slotIdle()` and `slotUserLevel()` by name.
/// The order of the virtual operations is part of the interface.
class ZelBaseWidget : public QWidget
{
    Q_OBJECT

public:
    ZelBaseWidget(BaseZelWidgetData* data, QWidget* parent, Qt::WindowFlags flags);
    ~ZelBaseWidget() override;

    /// Shows `widget` over the whole area. The widget is not deleted when it is replaced; the one that is
    /// central at destruction is deleted with this widget. Null detaches.
    void setCentralWidget(QWidget* widget);
    QWidget* getCentralWidget() const;

    virtual void slotKeyPressed(int key);
    virtual void drawText(QPainter* painter, const QRect& area, const QString& text);
    virtual void drawText(QPainter* painter, const QPoint& position, const QString& text);
    virtual void drawImage(QPainter* painter, const QRect& area, const QString& image);
    virtual void drawBorder(QPainter* painter, const QRect& area);
    virtual bool canBeDeleted() const;
    /// The host switches a variable context on (`used`) or off; false when a variable could not be had.
    virtual bool setUsedVars(int context, bool used);
    virtual bool isTransparent() const;
    virtual QVariant property(const QString& name) const;
    /// Subscribes (`used`) or releases variable `id` of the host's project; `kind` is the host's own flag
    /// word. False when there is no such variable.
    virtual bool setUsedVar(int id, bool used, unsigned kind);
    virtual bool setUsedEvent(int id, bool used);
    virtual void zelMousePressEvent(QMouseEvent* event);
    virtual void zelMouseReleaseEvent(QMouseEvent* event);

protected:
    BaseZelWidgetData* widgetData() const { return m_data; }
    void resizeEvent(QResizeEvent* event) override;

    /// Set to 1 by the host before each idle tick; the application sets it back to 0 when it is done, so
    /// that the host can tell an application that hangs.
    quint8 idleMarker = 0;
    friend class ApplicationSlot;

private:
    BaseZelWidgetData* m_data;
    QPointer<QWidget> m_central;
};

#endif
