#ifndef ZELCUSTOMDATA_H
#define ZELCUSTOMDATA_H

#include "BaseZelCustomData.h"

class FbMainWidget;

/// Data side of the application. It keeps the one menu page of the process, created on demand.
class ZelCustomData : public BaseZelCustomData
{
public:
    ~ZelCustomData() override;

    /// The menu page, constructed on the first call.
    QWidget* getCentralWidget() override;
    /// The menu page as it stands, possibly null.
    QWidget* currentCentralWidget() override;

    static FbMainWidget* menuPage();
    /// Forgets the menu page, then deletes it, so that nothing finds it half destroyed.
    static void deleteMenuPage();
};

#endif
