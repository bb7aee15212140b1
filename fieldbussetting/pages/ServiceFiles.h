#ifndef SERVICEFILES_H
#define SERVICEFILES_H

#include "BusObserver.h"
#include "FileLocations.h"

#include <QDateTime>

#include <array>

/// What the bus file data service holds of its two files. It would write back what it holds with the next
/// save of any page, so a page has to know whether that is what the controller has.
///
/// The menu page has the one object, which hears the service before any page does: each reading and each file
/// that was sent counts as a version of the file (`ControllerCopies`). What is known outlives the object.
class ServiceFiles : private BusObserver
{
public:
    ServiceFiles();
    ~ServiceFiles() override;
    ServiceFiles(const ServiceFiles&) = delete;
    ServiceFiles& operator=(const ServiceFiles&) = delete;

    /// Whether it is one of the two.
    static bool keeps(ConfigFile file)
    {
        return file == ConfigFile::BusRoles || file == ConfigFile::IoMapping;
    }
    /// The service had read the file before the application was opened.
    static void noteHeld(ConfigFile file);
    /// Whether the service holds the file as it is on the controller, for all that the pendant knows.
    static bool isCurrent(ConfigFile file);
    /// When the service read it; invalid before.
    static QDateTime readAt(ConfigFile file);
    /// How often it was read.
    static int readings(ConfigFile file);

    /// Lets the service read the file; its observers are told on a later turn of the event loop.
    static void request(ConfigFile file);
    /// Both, for what an import has changed below the service; also when no page is left.
    static void requestAll();
    /// Waits until the service has read the file, for 15 s at most, and processes events meanwhile: any page
    /// may be gone afterwards. False when it could not be read.
    static bool read(ConfigFile file);

private:
    void busNotification(int kind, const QString& path, bool success) override;
};

#endif
