#ifndef BYTEORDERS_H
#define BYTEORDERS_H

#include <QString>

/// What a byte order does to a number: the same for whoever explains a setting.
namespace ByteOrders {

struct Example
{
    const char* name;   ///< of the byte order, as the files and the pages spell it
    const char* number; ///< "0x01020304"
    const char* bytes;  ///< in the order in which they go out: "04 03 02 01"
};

/// Null for a text that is no byte order.
const Example* exampleOf(const QString& name);

} // namespace ByteOrders

#endif
