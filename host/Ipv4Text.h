#ifndef HOST_IPV4TEXT_H
#define HOST_IPV4TEXT_H

#include <QString>

/// Some readers take a number with a leading zero for an octal one. They are refused where the text goes on
/// as it is, and allowed where it is written anew before anyone reads it.
enum class LeadingZeros { Refused, Allowed };

/// Whether the text is an IPv4 address: four numbers of one to three digits, none above 255, with points
/// between. Nothing else, in particular no blanks and no signs.
bool isIpv4(const QString& text, LeadingZeros zeros);

#endif
