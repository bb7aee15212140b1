#ifndef MAINWIDGET_H
#define MAINWIDGET_H

#include "ZelBaseWidget.h"

class BaseZelCustomData;

/// The application's top-level widget: shows the menu page, forwards the host's idle ticks to it, subscribes
/// the controller variables, and closes the application.
class MainWidget : public ZelBaseWidget
{
    Q_OBJECT

public:
    MainWidget(BaseZelCustomData* applicationData, QWidget* parent);
    ~MainWidget() override;

    /// Subscribes or releases all variable groups of the plug-in for context 0; other contexts are not ours.
    /// Stops at the first group that fails.
    bool setUsedVars(int context, bool used) override;

public slots:
    virtual void slotIdle();
    /// The user level changed: below the required one the application is closed without a question.
    virtual void slotUserLevel();
    void closeAppSlot();

private:
    void closeApplication(bool hideCurrent);
    BaseZelCustomData* customData() const;

    /// Never cleared once set.
    bool m_closing = false;
};

#endif
