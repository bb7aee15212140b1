#ifndef CONTROLLER_DEVICENETMASTER_H
#define CONTROLLER_DEVICENETMASTER_H

#include "Behaviour.h"

#include <QSet>
#include <QVector>

/// The controller's DeviceNet master. It scans the devices of "dnmst0.cfg" and says of each in
/// "ifidbus.dnm_status" and "ifidbus.dnm_errorcode" whether it answers. A new file is taken over when it
/// arrives while "ifidbus.dnm_save_config" is set, which is then cleared; as many of its devices are scanned
/// as "ifidbus.dnm_slave_num" says. Without the role nothing is scanned.
class DeviceNetMaster : public Behaviour
{
    Q_OBJECT

public:
    static constexpr int MaxDevices = 16;
    static constexpr int HighestMacId = 63;

    /// "ifidbus.dnm_errorcode" of a device.
    enum Error {
        NoError = 0,         ///< connected, or not scanned
        NoLink = 1,          ///< the cable of the bus is out
        NotOnNetwork = 2,    ///< nobody answers under the MAC ID
        DuplicateMacId = 12, ///< a device further up has the MAC ID
        InvalidMacId = 13    ///< not 1 to 63
    };

    explicit DeviceNetMaster(ControllerParts& controllerParts);

    /// Puts a device with the MAC ID, 1 to 63, on the simulated network or takes it off; others are ignored.
    void setOnNetwork(int macId, bool on);
    bool isOnNetwork(int macId) const { return m_network.contains(macId); }

    /// MAC IDs of the list that is scanned, at most MaxDevices; -1 for a device without one.
    const QVector<int>& scanList() const { return m_scanList; }
    /// Announced files that were taken over.
    int listsTaken() const { return m_listsTaken; }

    void restarted() override;
    void wentDown() override;
    void fileStored(const QString& path) override;
    void tick() override;

private:
    void readScanList();
    Error errorOf(int device) const;

    QSet<int> m_network;
    QVector<int> m_scanList;
    int m_listsTaken = 0;
};

#endif
