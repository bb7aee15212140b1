#ifndef STATUSWIDGET_H
#define STATUSWIDGET_H

#include "ZelBaseWidget.h"

class StatusData;

/// The application's top-level widget: shows the page, forwards the host's idle ticks to it, and closes the
/// application.
class StatusWidget : public ZelBaseWidget
{
    Q_OBJECT

public:
    StatusWidget(StatusData& statusData, QWidget* parent);

    /// The variables are the data's, which follows them at all times; only the project's own are subscribed
    /// here.
    bool setUsedVars(int context, bool used) override;

public slots:
    virtual void slotIdle();
    /// The user level changed: below the required one the application is closed without a question.
    virtual void slotUserLevel();
    void closeAppSlot();

private:
    void closeApplication(bool forced);

    StatusData& m_statusData;
};

#endif
