#ifndef PENDANT_STATIONS_H
#define PENDANT_STATIONS_H

class TourGuide;

/// The stations of the tour, in a file an area. Each returns whether everything was reached and loaded, and
/// puts back what it changed at the controller. From the menu on each finds the application open and leaves
/// it open; `exit` ends it. They know the object names of the pages, and what of the controller is to be
/// changed for a picture: its variables and files.
namespace Stations {

// PendantStations.cpp: the pendant around the pages, and what the pages have in common.
bool home(TourGuide& guide);
bool menu(TourGuide& guide);
bool pages(TourGuide& guide);
bool heartbeatLights(TourGuide& guide);
bool message(TourGuide& guide);
bool numericKeyboard(TourGuide& guide);
bool logIn(TourGuide& guide);
bool language(TourGuide& guide);
bool panel(TourGuide& guide);
bool otherApplications(TourGuide& guide);
bool exit(TourGuide& guide);

// SwitchingStations.cpp
bool busSwitches(TourGuide& guide);
bool busSwitchSave(TourGuide& guide);

// UsbStations.cpp
bool usb(TourGuide& guide);

// HostLinkStations.cpp
bool mes(TourGuide& guide);
bool fins(TourGuide& guide);
/// Every link with its partner, and every light green.
bool partners(TourGuide& guide);

// MappingStations.cpp
bool mapping(TourGuide& guide);

// SlavesStations.cpp
bool deviceNetSlave(TourGuide& guide);
bool slaveStates(TourGuide& guide);
bool slaveModule(TourGuide& guide);

// MastersStations.cpp
bool modbusMaster(TourGuide& guide);
bool deviceNetMaster(TourGuide& guide);
bool slavesOfMasters(TourGuide& guide);
/// The tables of both sides, as long as they can be.
bool longDeviceTables(TourGuide& guide);

// StatusStations.cpp
/// The application that tells what runs.
bool status(TourGuide& guide);

} // namespace Stations

#endif
