#ifndef CONTROLLER_BUSROLES_H
#define CONTROLLER_BUSROLES_H

#include <QMap>
#include <QString>

#include <array>

/// A bus role that has a link of its own, and what it is called elsewhere.
struct BusRole
{
    const char* name;           ///< in "fieldbus.xml"
    const char* heartbeatKey;   ///< element of "heartbeat.xml"
    const char* linkVariable;   ///< whether its link is up
    const char* enableVariable; ///< whether it is switched on; null when there is none
    int communicationBit;       ///< in "ifidbus.commun_state"; -1 when it has none
};

/// In the order of the heartbeat file.
constexpr std::array<BusRole, 10> LinkedBusRoles{{
    {"ModbusTcpSlave", "Mtcp", "ifidbus.mtcp_link_state", "ifidbus.mtcp_enable", 0},
    {"EtherCatSlave", "Ethcat", "ifidbus.ethcat_link_state", "ifidbus.ethcat_enable", 1},
    {"ProfinetSlave", "Pfnet", "ifidbus.pfn_link_state", "ifidbus.pfn_enable", 3},
    {"EtherNetIPSlave", "Eip", "ifidbus.eip_link_state", "ifidbus.eip_enable", 2},
    {"EtherCatMaster", "Ecm", "ifidbus.ecm_link_state", nullptr, -1},
    {"DeviceNetSlave", "Dns", "ifidbus.dns_link_state", "ifidbus.dns_enable", 5},
    {"ModbusTcpMaster", "Mbc", "ifidbus.mbc_link_state", "ifidbus.mbc_enable", -1},
    {"EtherNetIPMaster", "Eim", "ifidbus.eim_link_state", nullptr, -1},
    {"ProfinetMaster", "Pnm", "ifidbus.pnm_link_state", nullptr, -1},
    {"DeviceNetMaster", "Dnm", "ifidbus.dnm_link_state", "ifidbus.dnm_enable", -1},
}};

/// Which roles run. What "fieldbus.xml" says comes to run with the next restart.
class BusRoles
{
public:
    bool isOn(const QString& role) const { return m_on.value(role, false); }
    bool isOn(const char* role) const { return isOn(QString::fromLatin1(role)); }
    const QMap<QString, bool>& all() const { return m_on; }
    void replace(const QMap<QString, bool>& roles) { m_on = roles; }

private:
    QMap<QString, bool> m_on;
};

#endif
