#ifndef NETWORKPORTS_H
#define NETWORKPORTS_H

#include "SysSettingApi.h"

/// The controller's two network ports as the files count them: 0 is ETH2, everything else ETH3.
namespace NetworkPorts {

/// Address of the port, read afresh; empty when it has none.
inline QString addressOf(int index)
{
    const NetworkAddresses addresses = SysSettingApi::getIpAddress();
    return index != 0 ? addresses.eth3Ip : addresses.eth2Ip;
}

} // namespace NetworkPorts

#endif
