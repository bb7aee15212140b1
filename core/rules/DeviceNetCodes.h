#ifndef DEVICENETCODES_H
#define DEVICENETCODES_H

#include "MarkedText.h"

/// What "ifidbus.dnm_errorcode" says of a device of the scan list.
namespace DeviceNetCodes {

constexpr int None = 0;
constexpr int NoLink = 1;
constexpr int NotOnNetwork = 2;
constexpr int MacIdTaken = 12; ///< a device further up in the list has it
constexpr int MacIdInvalid = 13;

/// The code in words, of the translation context "DeviceNetCodes". A code that is not known here is told as
/// a number.
MarkedText textOf(int code);

} // namespace DeviceNetCodes

#endif
