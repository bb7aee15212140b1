#ifndef VANTOR_SYSSETTINGAPI_H
#define VANTOR_SYSSETTINGAPI_H

#include <QString>

/// Addresses of the controller's two network ports; a text is empty when its port has no address.
struct NetworkAddresses
{
    QString eth2Ip;
    QString eth2Netmask;
    QString eth3Ip;
    QString eth3Netmask;
};

/// System services of the pendant: idle service, waiting, restarting, network ports.
class SysSettingApi
{
public:
    static SysSettingApi* getInstance();

    /// To be called by the application on every idle tick.
    void sysSettingLibIdle();

    /// Waits `msec` milliseconds while events are processed: slots can be re-entered, and the caller's own
    /// page may be closed, before it returns.
    static void delay_MSec(unsigned msec);

    /// Restarts the robot controller. `save` keeps the program state, `wait` returns at once and lets the
    /// restart begin on the next event-loop turn.
    static void rebootRde(bool save, bool wait);
    /// Restarts the pendant, on a later event-loop turn.
    static void rebootTpu(bool save);
    /// The restart request flag of the controller; true asks it to restart.
    static void set_bswrsdet(bool requested);

    /// Addresses and netmasks of ETH2 and ETH3, read afresh on each call. Processes no events.
    static NetworkAddresses getIpAddress();

    /// Removes a file of the controller; true when it is gone.
    static bool removeRemoteFile(const QString& ctrlPath);

private:
    SysSettingApi() = default;
};

#endif
