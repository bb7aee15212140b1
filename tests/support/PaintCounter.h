#ifndef TESTS_PAINTCOUNTER_H
#define TESTS_PAINTCOUNTER_H

#include <QApplication>
#include <QEvent>

/// Counts what costs a pendant time while it lives: style-sheet changes and paints of any widget.
class PaintCounter : public QObject
{
public:
    PaintCounter() { qApp->installEventFilter(this); }

    int styleChanges() const { return m_styleChanges; }
    int paints() const { return m_paints; }

protected:
    bool eventFilter(QObject* watched, QEvent* event) override
    {
        if (watched->isWidgetType()) {
            m_styleChanges += event->type() == QEvent::StyleChange;
            m_paints += event->type() == QEvent::Paint;
        }
        return false;
    }

private:
    int m_styleChanges = 0;
    int m_paints = 0;
};

#endif
