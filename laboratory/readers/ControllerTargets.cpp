// What the simulated controller takes from files and from its connections.
#include "ControllerXml.h"
#include "DevicesInUse.h"
#include "FinsFrame.h"
#include "FrameFields.h"
#include "FrameLog.h"
#include "HostLinkFiles.h"
#include "MappingCheck.h"
#include "ModbusFiles.h"
#include "ModbusFrame.h"
#include "Pcap.h"
#include "RoleFiles.h"
#include "Target.h"
#include "Wire.h"

namespace {

void feedMapping(const QByteArray& bytes)
{
    mappingFault(bytes);
    for (const char* mode : {"free", "fixed"}) {
        for (const RegisterBlock& block : readRegisterBlocks(bytes, mode))
            promise(block.count >= 1 && block.first >= 0 && block.first + block.count <= 0x10000,
                    "a block lies within the registers");
        promise(readMappedVariables(bytes, bytes, mode).size() <= 3 * 0x10000,
                "no more variables than registers");
    }
}

void feedRoles(const QByteArray& bytes)
{
    QMap<QString, bool> roles;
    if (readRoles(bytes, roles)) {
        for (auto role = roles.cbegin(); role != roles.cend(); ++role) {
            QMap<QString, bool> again;
            const QByteArray file = rolesWith(bytes, role.key(), !role.value());
            // An entry without "enable" or with a name that is no text cannot be switched.
            promise(file.isEmpty() || (readRoles(file, again) && again.value(role.key()) != role.value()),
                    "a role is switched");
            if (roles.size() > 16)
                break;
        }
    }
    switchFileWithRoles(bytes, roles);
    isSlaveFile(bytes);
}

void feedSettings(const QByteArray& bytes)
{
    readMesServer(bytes);
    const FinsClientSettings fins = readFinsClient(bytes);
    promise(fins.clientNode >= 0 && fins.clientNode <= 254, "a FINS node");
    if (const auto master = readMasterSettings(bytes))
        promise(master->timeoutMs > 0, "a time-out");
    QMap<QString, HeartbeatWatch> watches;
    readHeartbeat(bytes, watches);
}

void feedDevices(const QByteArray& bytes)
{
    isDeviceInUse(bytes, "ANYBUS");
}

// The stream falls into frames, whatever it is; each is shown byte by byte.
template <Wire::Id Id>
void feedWire(const QByteArray& bytes)
{
    const Wire& wire = Wire::of(Id);
    QByteArray received = bytes;
    QVector<LoggedFrame> frames;
    while (!received.isEmpty()) {
        const int size = wire.sizeOf(received);
        promise(size >= Wire::Garbage && size <= received.size(), "no frame is longer than what came");
        if (size <= 0)
            break;
        frames.append({QDateTime::fromMSecsSinceEpoch(0), Id, true, true, 1502, 40000, received.left(size)});
        received.remove(0, size);
    }
    if (!received.isEmpty())
        frames.append({QDateTime::fromMSecsSinceEpoch(0), Id, true, true, 1502, 40000, received});
    for (const LoggedFrame& frame : frames) {
        int next = 0;
        for (const FrameField& field : fieldsOf(frame)) {
            promise(field.offset == next && field.size >= 1, "every byte has a name, without a gap");
            next += field.size;
        }
        promise(next == frame.bytes.size(), "every byte has a name");
        summaryOf(frame);
    }
    pcapOf(frames);
}

void feedFins(const QByteArray& bytes)
{
    feedWire<Wire::Fins>(bytes);
    const int size = bytes.isEmpty() ? 0 : FinsFrame::sizeOf(bytes);
    if (size > 0) {
        const FinsFrame frame = FinsFrame::of(bytes.left(size));
        promise(frame.bytes() == bytes.left(size), "a frame is written as it was read");
        FinsWordRead().response(frame.data);
    }
    finsResponse(
        bytes, 0, [](quint16 word) { return word; }, [](quint16, quint16) {});
}

void feedModbus(const QByteArray& bytes)
{
    feedWire<Wire::Modbus>(bytes);
    const int size = bytes.isEmpty() ? 0 : ModbusFrame::sizeOf(bytes);
    if (size > 0) {
        const ModbusFrame frame = ModbusFrame::of(bytes.left(size));
        promise(frame.bytes() == bytes.left(size), "a frame is written as it was read");
        frame.exception();
    }
}

} // namespace

const std::vector<Target>& targets()
{
    static const std::vector<Target> all{
        {"controller-mapping",
         {"application/fidbus/fieldbus_config.xml", "application/fidbus/user_description.xml"},
         feedMapping},
        {"controller-roles",
         {"application/fidbus/fieldbus.xml", "application/fidbus/Fieldbus.cfg"},
         feedRoles},
        {"controller-settings",
         {"application/mes/TcpServerConfig.xml", "application/finstcp/FinsTcpConfig.xml",
          "application/fidbus/mtcpMaster/mtcp_master.xml", "application/fidbus/heartbeat.xml"},
         feedSettings},
        {"controller-devices", {"fa/override.cfg"}, feedDevices},
        {"fins-frames",
         {"#46494e530000000c00000000000000000000000c", "#46494e530000001000000001000000000000000c00000016",
          "#46494e530000001a0000000200000000800002001600000c00010101018203e8000001",
          "#46494e53000000180000000200000000c00002000c00001600010101000000"
          "2a"},
         feedFins},
        {"modbus-frames",
         {"#000100000006010300000010",
          "#00010000000501030200"
          "2a",
          "#000100000003018302", "#00020000000b0110000000020400010002"},
         feedModbus},
        {"mes-frames", {"#0d0a", "#7b226d7367223a2268656c6c6f227d0a"}, feedWire<Wire::Mes>},
    };
    return all;
}
