#ifndef VANTOR_BUSFILEDATA_H
#define VANTOR_BUSFILEDATA_H

#include <QString>

#include <array>

/// A bus role as "fieldbus.xml" lists it.
struct BusName
{
    QString name;         ///< for example "EtherNetIPSlave"
    bool enabled = false; ///< switched on
};

/// "No address" of a start or end.
constexpr quint32 NoBusAddress = 0xFFFFFFFF;

/// One row of a mapping table: how many variables of one type, and where they lie.
struct BusRowInfo
{
    int quantity = 0;
    quint32 start = NoBusAddress; ///< first byte, or first register for Modbus TCP
    quint32 end = NoBusAddress;   ///< last byte or register, inclusive
};

/// Types of mapped variables, as index of the rows of an area. A Bool is one bit, an Int two bytes, a
/// Float four bytes.
enum BusVariableType { BusBool = 0, BusInt = 1, BusFloat = 2 };

/// One direction of a bus. Without a system area (masters, free-bus mode) the system rows are 0.
struct BusAreaInfo
{
    std::array<BusRowInfo, 3> user;
    std::array<BusRowInfo, 3> system;
    quint32 start = NoBusAddress; ///< first register of the block, Modbus TCP only
    quint32 end = NoBusAddress;   ///< last register of the block, Modbus TCP only
};

/// Quantities and addresses of one bus role in the current mode (free or non-free).
struct BusAddrNumInfo
{
    QString busName; ///< "ModbusTcpSlave", "EtherCatSlave", ... as in "fieldbus_config.xml"
    BusAreaInfo readOnly;
    BusAreaInfo writeOnly;
    BusAreaInfo readWrite; ///< Modbus TCP slave only
};

inline bool operator==(const BusRowInfo& a, const BusRowInfo& b)
{
    return a.quantity == b.quantity && a.start == b.start && a.end == b.end;
}

inline bool operator==(const BusAreaInfo& a, const BusAreaInfo& b)
{
    return a.user == b.user && a.system == b.system && a.start == b.start && a.end == b.end;
}

inline bool operator==(const BusAddrNumInfo& a, const BusAddrNumInfo& b)
{
    return a.busName == b.busName && a.readOnly == b.readOnly && a.writeOnly == b.writeOnly &&
           a.readWrite == b.readWrite;
}

#endif
