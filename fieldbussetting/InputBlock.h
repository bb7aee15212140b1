#ifndef INPUTBLOCK_H
#define INPUTBLOCK_H

#include <QObject>

class QWidget;

/// Stops the operator's input to the application while a page is at work: fingers, keys and input methods, on
/// the menu, on every page and on the windows that they show. A box that a page shows meanwhile and waits
/// for, which is modal, can be answered.
class InputBlock : public QObject
{
    Q_OBJECT

public:
    /// `application`: the widget that all of it is below.
    explicit InputBlock(QWidget* application);

    /// A page begins (true) or ends (false) to be at work. In pairs, may nest.
    void count(bool begins);
    bool isOn() const { return m_count != 0; }

    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    bool isStopped(const QWidget* widget) const;

    QWidget* m_application;
    int m_count = 0;
};

#endif
