#ifndef FIELDRANGES_H
#define FIELDRANGES_H

#include "DeviceNetMasterFile.h"
#include "DeviceNetSlaveFile.h"
#include "FinsClientFile.h"
#include "HeartbeatFile.h"
#include "MasterTableFile.h"
#include "MesServerFile.h"
#include "MtcpMasterFile.h"
#include "PfbSlaveFile.h"

#include <cstddef>

/// What may be entered for a field of a record; both ends belong to it. A file may hold other values: they
/// are shown and kept until somebody types over them.
struct FieldRange
{
    double least;
    double most;
    const char* unit = ""; ///< symbol, the same in every language; empty for a count or an index
};

/// The range of a record member: `RangeOf<&MesServerConfig::Mode>.most`. A member without one does not
/// compile.
template <auto Member>
inline constexpr std::nullptr_t RangeOf = nullptr;

template <>
inline constexpr FieldRange RangeOf<&MtcpMasterConfig::SlavePort>{0, 65535};
template <>
inline constexpr FieldRange RangeOf<&MtcpMasterConfig::SlaveId>{0, 125};
template <>
inline constexpr FieldRange RangeOf<&MtcpMasterConfig::TimeOut>{0.1, 10, "s"};
template <>
inline constexpr FieldRange RangeOf<&MtcpMasterConfig::ReadEndian>{0, 3};
template <>
inline constexpr FieldRange RangeOf<&MtcpMasterConfig::WriteEndian>{0, 3};

// The keyboard takes five digits. On what is no port the controller does not listen.
template <>
inline constexpr FieldRange RangeOf<&MesServerConfig::Port>{0, 99999};
template <>
inline constexpr FieldRange RangeOf<&MesServerConfig::Mode>{0, 1};
template <>
inline constexpr FieldRange RangeOf<&MesServerConfig::Protocol>{0, 1};
template <>
inline constexpr FieldRange RangeOf<&MesServerConfig::IntervalTime>{0, 9999, "ms"};
template <>
inline constexpr FieldRange RangeOf<&MesServerConfig::IpPortIndex>{0, 1};

template <>
inline constexpr FieldRange RangeOf<&FinsClientConfig::ServerPort>{0, 65535};
// A word of the data memory is addressed by 16 bits.
template <>
inline constexpr FieldRange RangeOf<&FinsClientConfig::ReadDmAddress>{0, 65535};
template <>
inline constexpr FieldRange RangeOf<&FinsClientConfig::WriteDmAddress>{0, 65535};
template <>
inline constexpr FieldRange RangeOf<&FinsClientConfig::AutoConnect>{0, 1};
template <>
inline constexpr FieldRange RangeOf<&FinsClientConfig::IpPortIndex>{0, 1};

template <>
inline constexpr FieldRange RangeOf<&MasterSlaveTable::SlaveNum>{0, MasterSlaveTable::PositionCount};
template <>
inline constexpr FieldRange RangeOf<&MasterSlaveTable::DisableTimeout>{0, 999999};
template <>
inline constexpr FieldRange RangeOf<&MasterSlaveTable::EnableTimeout>{0, 999999};

template <>
inline constexpr FieldRange RangeOf<&PfbSlaveConfig::ProfibusAddress>{0, 125};

// The ten time-outs are alike; the first stands for all.
template <>
inline constexpr FieldRange RangeOf<&HeartbeatConfig::Mtcp_Timeout>{0, 9999.999, "s"};

template <>
inline constexpr FieldRange RangeOf<&DeviceNetSlaveConfig::Dns_MACID>{1, 63};

template <>
inline constexpr FieldRange RangeOf<&DeviceNetMasterConfig::WS_ID>{0, 63};
template <>
inline constexpr FieldRange RangeOf<&DeviceNetMasterConfig::PACHET_RATIO>{1, 255, "ms"};
template <>
inline constexpr FieldRange RangeOf<&DeviceNetMasterDevice::MAC_ID>{1, 63};
template <>
inline constexpr FieldRange RangeOf<&DeviceNetMasterDevice::inputBytes>{0, 64};
template <>
inline constexpr FieldRange RangeOf<&DeviceNetMasterDevice::outputBytes>{0, 64};
template <>
inline constexpr FieldRange RangeOf<&DeviceNetMasterDevice::VENDOR_ID>{-65535, 65535};
template <>
inline constexpr FieldRange RangeOf<&DeviceNetMasterDevice::PROD_CODE>{-65535, 65535};
template <>
inline constexpr FieldRange RangeOf<&DeviceNetMasterDevice::REVISION>{-65535, 65535};
template <>
inline constexpr FieldRange RangeOf<&DeviceNetMasterDevice::CFG_FLAG>{0, 0xffff};

#endif
