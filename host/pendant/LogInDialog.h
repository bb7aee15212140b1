#ifndef PENDANT_LOGINDIALOG_H
#define PENDANT_LOGINDIALOG_H

#include "ChoiceDialog.h"

/// Lets the operator choose the user level with one touch.
class LogInDialog : public ChoiceDialog
{
    Q_OBJECT

public:
    static constexpr int HighestLevel = 5;

    LogInDialog(int level, QWidget* parent);
};

#endif
