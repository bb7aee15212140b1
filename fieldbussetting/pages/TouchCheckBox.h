#ifndef TOUCHCHECKBOX_H
#define TOUCHCHECKBOX_H

#include <QCheckBox>

class QLabel;

/// A check box for a gloved finger: all of its place is the target, not the box and its text alone, and so is
/// the caption beside it.
class TouchCheckBox : public QCheckBox
{
    Q_OBJECT

public:
    explicit TouchCheckBox(QWidget* parent = nullptr);
    TouchCheckBox(const QString& text, QWidget* parent);

    /// Presses of the label are presses of the box, which it gives its name.
    void takeCaption(QLabel* caption);
    /// Takes every label in `page` whose buddy is such a box.
    static void takeCaptionsIn(QWidget* page);

    bool eventFilter(QObject* watched, QEvent* event) override;

protected:
    bool hitButton(const QPoint& spot) const override { return rect().contains(spot); }
};

#endif
