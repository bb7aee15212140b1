#ifndef PENDANT_CHOICEDIALOG_H
#define PENDANT_CHOICEDIALOG_H

#include <QDialog>

#include <vector>

/// Lets the operator choose one of a few things with one touch.
class ChoiceDialog : public QDialog
{
    Q_OBJECT

public:
    struct Choice
    {
        QString name; ///< object name of its button
        QString text;
    };

    /// `chosen` is the index of the present one. The choices stand in rows of `columns`.
    ChoiceDialog(const QString& title, const std::vector<Choice>& choices, int chosen, int columns,
                 QWidget* parent);

    /// Shows the dialog; the index of what was chosen, -1 when nothing was or the dialog was destroyed
    /// meanwhile.
    static int ask(ChoiceDialog* made);

private:
    int m_chosen;
};

#endif
