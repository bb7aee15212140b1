#ifndef VANTOR_PROGRESSBARWIDGET_H
#define VANTOR_PROGRESSBARWIDGET_H

#include <QWidget>

class QProgressBar;

/// A frameless window with a progress bar, shown while an application starts.
class ProgressBarWidget : public QWidget
{
    Q_OBJECT

public:
    explicit ProgressBarWidget(QWidget* parent);
    void setRange(int minimum, int maximum);
    void setValue(int value);
    int value() const;

private:
    QProgressBar* m_bar;
};

#endif
