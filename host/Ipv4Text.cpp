#include "Ipv4Text.h"

#include <QStringList>

#include <algorithm>

namespace {
constexpr int Octets = 4;
constexpr int OctetDigits = 3;
constexpr int HighestOctet = 255;

bool isOctet(const QString& text, LeadingZeros zeros)
{
    return !text.isEmpty() && text.size() <= OctetDigits &&
           std::all_of(text.cbegin(), text.cend(),
                       [](QChar c) { return c >= QLatin1Char('0') && c <= QLatin1Char('9'); }) &&
           text.toInt() <= HighestOctet &&
           (zeros == LeadingZeros::Allowed || text.size() == 1 || text[0] != QLatin1Char('0'));
}
} // namespace

bool isIpv4(const QString& text, LeadingZeros zeros)
{
    const QStringList octets = text.split(QLatin1Char('.'));
    return octets.size() == Octets &&
           std::all_of(octets.cbegin(), octets.cend(),
                       [zeros](const QString& octet) { return isOctet(octet, zeros); });
}
