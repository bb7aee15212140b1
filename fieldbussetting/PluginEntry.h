#ifndef PLUGINENTRY_H
#define PLUGINENTRY_H

#include <QtGlobal>

class BaseZelCustomData;
class QWidget;
class ZelBaseWidget;

extern "C" {

/// A new data object of the application; the host owns it.
Q_DECL_EXPORT BaseZelCustomData* CreateZelCustomData();

/// A new top-level widget on a data object returned above; the host owns it and deletes it first.
Q_DECL_EXPORT ZelBaseWidget* CreateZelCustomWidget(BaseZelCustomData* data, QWidget* parent);
}

#endif
