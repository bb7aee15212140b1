#ifndef VANTOR_BUSFILEDATAMANAGER_H
#define VANTOR_BUSFILEDATAMANAGER_H

#include "BusFileData.h"

#include <QMap>
#include <QString>

#include <vector>

class BusObserver;

/// The pendant's shared bus file data service: it owns what "fieldbus.xml" (which bus roles are switched
/// on) and "fieldbus_config.xml" (the I/O mapping) say, fetches and sends them, and tells its observers.
class BusFileDataManager
{
public:
    static BusFileDataManager* getInstance();
    BusFileDataManager(const BusFileDataManager&) = delete;
    BusFileDataManager& operator=(const BusFileDataManager&) = delete;

    void attach(BusObserver* observer);
    void detach(BusObserver* observer);

    /// Whether a result was already notified for `key`, "fieldbus" or "fieldbusCfg".
    bool isFuncInfoNotified(const QString& key) const;
    /// Fetches "/application/fidbus/fieldbus.xml" and notifies with kind 0.
    void emitGetFieldXml();
    /// Fetches "/application/fidbus/fieldbus_config.xml" and notifies with kind 0.
    void emitGetFieldbusCfg();

    /// The bus roles of "fieldbus.xml" in file order. `listed` takes them from the file's list (false gives
    /// an empty vector); `onlyEnabled` leaves out those that are switched off.
    std::vector<BusName> getBusNameList(bool listed, bool onlyEnabled) const;
    /// All bus roles by name, switched on or not.
    QMap<QString, BusName> getAllBusName() const;
    /// Takes changed roles over; roles that are not in the file are ignored.
    void setBusInfo(const QMap<QString, BusName>& roles);
    /// Whether free bus configuration is switched on.
    bool isOpenFreeBus() const;
    /// Writes "fieldbus.xml" with the roles taken over, sends it and notifies with kind 1.
    void writeSendFieldbusXml();

    /// Quantities and addresses of every bus in the current mode.
    std::vector<BusAddrNumInfo> getBusNumAndAddr() const;
    void setBusNumAndAddr(const std::vector<BusAddrNumInfo>& buses);
    /// Writes "fieldbus_config.xml" with the quantities taken over, sends it and notifies with kind 1.
    void writeSendFieldbusCfg();

    /// 1 when the controller has a ProfiSAFE device.
    int checkProfiSAFEStatus() const;
    /// Reads the ProfiSAFE description file into bit number -> text, for outputs and for inputs.
    bool getAndReadPfsDesc(QMap<int, QString>& outputs, QMap<int, QString>& inputs);

    /// Fetches the fieldbus module's slave settings and gives their byte order, "littleEndian" or
    /// "bigEndian"; false leaves `endian` as it was.
    bool getAndReadFbslave(QString& endian);
    bool writeAndSendFbslave(const QString& endian);

    /// The performance switch word after bus number `bus` (its bit in the word) was switched on or off in
    /// `current`, or -1 when that is not allowed.
    int getPerformanceValue(int bus, int current, bool on);

    /// Whether the controller may be restarted now.
    bool isRebootRde() const;

    /// Whether `text` is an IPv4 address in dotted decimal form.
    static bool checkIPv4Format(const QString& text);

private:
    BusFileDataManager() = default;
    ~BusFileDataManager() = default;
};

/// Bus number that last lost the communication performance switch to another bus, -1 when none did.
extern int g_lastBusType;

#endif
