#include "HeartbeatFile.h"

#include "XmlFile.h"

#include <cmath>

#define HEARTBEAT_FIELD(bus)                                                                                 \
    {                                                                                                        \
#bus, #bus "_Nod_Switch", &HeartbeatConfig::bus##_Nod_Switch, #bus "_Timeout",                       \
            &HeartbeatConfig::bus##_Timeout                                                                  \
    }

const std::array<HeartbeatConfig::Field, HeartbeatConfig::BusCount>& HeartbeatConfig::fields()
{
    static constexpr std::array<Field, BusCount> table = {{
        HEARTBEAT_FIELD(Mtcp),
        HEARTBEAT_FIELD(Ethcat),
        HEARTBEAT_FIELD(Pfnet),
        HEARTBEAT_FIELD(Eip),
        HEARTBEAT_FIELD(Ecm),
        HEARTBEAT_FIELD(Dns),
        HEARTBEAT_FIELD(Mbc),
        HEARTBEAT_FIELD(Eim),
        HEARTBEAT_FIELD(Pnm),
        HEARTBEAT_FIELD(Dnm),
    }};
    return table;
}

#undef HEARTBEAT_FIELD

QString HeartbeatConfig::timeoutText(double seconds)
{
    return QString::number(std::isfinite(seconds) ? seconds : 0.0, 'f', 3);
}

// Unlike the other readers this one forgets the previous values even when there is nothing to read.
bool HeartbeatFile::read(const QByteArray& content, HeartbeatConfig& record, bool* recognised)
{
    record = HeartbeatConfig();
    pugi::xml_document document;
    if (!XmlFile::load(content, document))
        return false;
    readFrom(document, record, recognised);
    return true;
}

void HeartbeatFile::readFrom(const pugi::xml_document& document, HeartbeatConfig& record, bool* recognised)
{
    const XmlFile::PointDecimals pointDecimals;
    const pugi::xml_node root = document.child("Fidbus");
    bool anyBus = false;
    for (const HeartbeatConfig::Field& field : HeartbeatConfig::fields()) {
        const pugi::xml_node bus = root.child(field.bus);
        anyBus = anyBus || bus;
        record.*field.nodSwitch = bus.child(field.switchElement).text().as_bool();
        record.*field.timeout = bus.child(field.timeoutElement).text().as_double();
    }
    if (recognised)
        *recognised = anyBus;
}

QByteArray HeartbeatFile::written(const HeartbeatConfig& record)
{
    pugi::xml_document document;
    XmlFile::appendPrologue(document);
    pugi::xml_node root = document.append_child("Fidbus");
    for (const HeartbeatConfig::Field& field : HeartbeatConfig::fields()) {
        pugi::xml_node bus = root.append_child(field.bus);
        bus.append_child(field.switchElement).text() = record.*field.nodSwitch ? "1" : "0";
        bus.append_child(field.timeoutElement).text() =
            HeartbeatConfig::timeoutText(record.*field.timeout).toLatin1().constData();
    }
    return XmlFile::bytes(document);
}
