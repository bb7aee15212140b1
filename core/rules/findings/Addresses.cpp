#include "Addresses.h"

#include <QStringList>

#include <algorithm>

namespace Addresses {

std::optional<Ip> ipOf(const QString& text)
{
    const QStringList parts = text.trimmed().split(QLatin1Char('.'));
    if (parts.size() != 4)
        return {};
    Ip address = 0;
    for (const QString& part : parts) {
        const bool isDigits =
            !part.isEmpty() && part.size() <= 3 && std::all_of(part.begin(), part.end(), [](QChar c) {
                return c >= QLatin1Char('0') && c <= QLatin1Char('9');
            });
        if (!isDigits || part.toInt() > 255)
            return {};
        address = address << 8 | static_cast<Ip>(part.toInt());
    }
    return address;
}

bool isMask(const QString& text)
{
    const auto mask = ipOf(text);
    return mask && *mask != 0 && (~*mask & (~*mask + 1)) == 0;
}

bool areInOneNet(const PortAddress& one, const PortAddress& other)
{
    const auto first = ipOf(one.ip);
    const auto second = ipOf(other.ip);
    const auto mask = ipOf(one.netmask);
    const auto otherMask = ipOf(other.netmask);
    if (!first || !second || !mask || !otherMask)
        return false;
    const Ip wider = *mask & *otherMask;
    return (*first & wider) == (*second & wider);
}

bool isReached(Ip address, const std::vector<PortAddress>& ports)
{
    return std::any_of(ports.begin(), ports.end(), [address](const PortAddress& port) {
        const auto own = ipOf(port.ip);
        const auto mask = ipOf(port.netmask);
        return own && mask && (*own & *mask) == (address & *mask);
    });
}

} // namespace Addresses
