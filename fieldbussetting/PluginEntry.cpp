#include "PluginEntry.h"

#include "ControllerCopies.h"
#include "FieldbusSettingLib.h"
#include "FormerFiles.h"
#include "MainWidget.h"
#include "ZelCustomData.h"

namespace {

// The library object has no owner but the plug-in; it goes when the plug-in is unloaded.
struct LibraryRelease
{
    // What the library lets go of last is made first, so that it is still there.
    LibraryRelease()
    {
        ControllerCopies::instance();
        FormerFiles::instance();
    }
    LibraryRelease(const LibraryRelease&) = delete;
    LibraryRelease& operator=(const LibraryRelease&) = delete;
    ~LibraryRelease() { FieldbusSettingLib::destroy(); }
};

const LibraryRelease libraryRelease;

} // namespace

BaseZelCustomData* CreateZelCustomData()
{
    return new ZelCustomData;
}

ZelBaseWidget* CreateZelCustomWidget(BaseZelCustomData* data, QWidget* parent)
{
    auto* widget = new MainWidget(data, parent);
    QWidget* central = data->getCentralWidget();
    widget->setCentralWidget(central);
    if (central)
        QObject::connect(central, SIGNAL(closeApp()), widget, SLOT(closeAppSlot()));
    return widget;
}
