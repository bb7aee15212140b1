#ifndef NETWORKPORTS_H
#define NETWORKPORTS_H

#include "SysSettingApi.h"

#include <QString>

#include <array>

/// A network port of the controller; both texts are empty while it has no address.
struct NetworkPort
{
    QString ip;
    QString netmask;
};

namespace NetworkPorts {

/// In the order in which pages list them: ETH2, ETH3.
constexpr int Count = 2;

/// As the controller has them now.
inline std::array<NetworkPort, Count> read()
{
    const NetworkAddresses addresses = SysSettingApi::getIpAddress();
    return {{{addresses.eth2Ip, addresses.eth2Netmask}, {addresses.eth3Ip, addresses.eth3Netmask}}};
}

/// Address of the port that the host links' files count as `index`: 0 is ETH2, everything else ETH3.
inline QString addressOf(int index)
{
    return read()[index != 0 ? 1 : 0].ip;
}

} // namespace NetworkPorts

#endif
