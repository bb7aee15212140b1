#include "StatusData.h"
#include "StatusWidget.h"

extern "C" {

/// A new data object of the application; the host owns it.
Q_DECL_EXPORT BaseZelCustomData* CreateZelCustomData()
{
    return new StatusData;
}

/// A new top-level widget on a data object returned above; the host owns it and deletes it first.
Q_DECL_EXPORT ZelBaseWidget* CreateZelCustomWidget(BaseZelCustomData* data, QWidget* parent)
{
    return new StatusWidget(*static_cast<StatusData*>(data), parent);
}
}
