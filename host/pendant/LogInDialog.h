#ifndef PENDANT_LOGINDIALOG_H
#define PENDANT_LOGINDIALOG_H

#include <QDialog>

/// Lets the operator choose the user level with one touch.
class LogInDialog : public QDialog
{
    Q_OBJECT

public:
    static constexpr int HighestLevel = 5;

    LogInDialog(int level, QWidget* parent);

    /// The level that was chosen when the dialog was accepted.
    int level() const { return m_level; }

private:
    int m_level;
};

#endif
