#ifndef ADDRESSES_H
#define ADDRESSES_H

#include "PortAddressFile.h"

#include <optional>

/// IPv4 addresses of the controller's files.
namespace Addresses {

using Ip = quint32;

/// Four decimal numbers from 0 to 255 with points between them, blanks around them passed over.
std::optional<Ip> ipOf(const QString& text);
/// Ones, then zeros.
bool isMask(const QString& text);
inline bool isLoopback(Ip address)
{
    return address >> 24 == 127;
}
inline int lastNumber(Ip address)
{
    return static_cast<int>(address & 0xff);
}
/// Of ports with an address and a mask.
bool areInOneNet(const PortAddress& one, const PortAddress& other);
/// Whether the address is in the net of one of the ports.
bool isReached(Ip address, const std::vector<PortAddress>& ports);

} // namespace Addresses

#endif
