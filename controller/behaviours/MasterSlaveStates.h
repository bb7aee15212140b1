#ifndef CONTROLLER_MASTERSLAVESTATES_H
#define CONTROLLER_MASTERSLAVESTATES_H

#include "Behaviour.h"

#include <array>

/// The slaves of the EtherNet/IP and of the PROFINET master, as "eip_master.xml" and "pfn_master.xml" said
/// when the controller last came up. None is connected while "override.cfg" has the master's own device
/// switched off.
///
/// A fixed slave is connected while it is plugged in and its master runs. A dynamic one is coupled when the
/// master comes up or it is plugged in, and decoupled when it is taken away; both take their time, and have
/// failed when the file's time-out passes first. A position that is neither is not served.
class MasterSlaveStates : public Behaviour
{
    Q_OBJECT

public:
    enum Master { EtherNetIp, Profinet, MasterCount };
    static constexpr int PositionCount = 9;

    /// What coupling and decoupling take, in milliseconds.
    static constexpr int CouplingMs = 1200;
    static constexpr int DecouplingMs = 600;

    explicit MasterSlaveStates(ControllerParts& controllerParts);

    /// Plugs a slave in or takes it away; false when there is no such position. It stays so over a restart.
    bool setSlaveConnected(Master master, int position, bool connected);
    bool isSlavePlugged(Master master, int position) const;

    /// Puts the own device of a master that is on in use, in "override.cfg" and at once, as nobody but the
    /// panel can. Two masters never need theirs together: their devices are on one card.
    void useDevice(Master master);
    /// Whether the master's own device is in use; without it no slave is served.
    bool hasDevice(Master master) const { return m_tables[master].hasDevice; }

    enum class Service { None, Fixed, Dynamic };
    /// How the master serves the position, 0 to PositionCount - 1.
    Service serviceOf(Master master, int position) const { return slave(master, position).service; }

    void restarted() override;
    void rolesChanged() override;
    void wentDown() override;

private:
    struct Slave
    {
        Service service = Service::None;
        bool plugged = true;
        bool connected = false;
        int coupling = 0;   ///< 0 nothing, 1 done, 2 failed
        int decoupling = 0; ///< as coupling

        void reset()
        {
            connected = false;
            coupling = 0;
            decoupling = 0;
        }
    };
    struct Table
    {
        std::array<Slave, PositionCount> slaves;
        int couplingTimeout = 0; ///< milliseconds
        int decouplingTimeout = 0;
        bool hasDevice = false; ///< the master's own device is in use
        bool runs = false;      ///< ... and its role is on
    };

    const Slave& slave(Master master, int position) const;
    Slave& slave(Master master, int position);
    void readTable(Master master);
    /// Serves the positions, or none when the role of the master is off.
    void start(Master master);
    void serve(Master master, int position);
    void beginPhase(Master master, int position);
    void publish(Master master, int position);

    std::array<Table, MasterCount> m_tables;
};

#endif
