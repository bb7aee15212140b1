#include "RoleFiles.h"

#include "BusRoles.h"
#include "ControllerXml.h"

#include <string>

bool readRoles(const QByteArray& fieldbusXml, QMap<QString, bool>& roles)
{
    pugi::xml_document document;
    const pugi::xml_node root = ControllerXml::load(fieldbusXml, "Fieldbus", document);
    if (!root)
        return false;
    roles.clear();
    for (const pugi::xml_node& bus : root.children("Bus")) {
        const QString name = QString::fromUtf8(bus.attribute("name").value());
        // Of two entries with one name the first counts.
        if (!name.isEmpty() && !roles.contains(name))
            roles.insert(name, bus.attribute("enable").as_int() == 1);
    }
    return true;
}

QByteArray rolesWith(const QByteArray& fieldbusXml, const QString& role, bool on)
{
    pugi::xml_document document;
    const pugi::xml_node bus = ControllerXml::load(fieldbusXml, "Fieldbus", document)
                                   .find_child_by_attribute("Bus", "name", role.toUtf8());
    pugi::xml_attribute enable = bus.attribute("enable");
    return enable.set_value(on ? "1" : "0") ? ControllerXml::save(document) : QByteArray();
}

QByteArray switchFileWithRoles(const QByteArray& fieldbusCfg, const QMap<QString, bool>& roles)
{
    pugi::xml_document document;
    bool changed = false;
    const pugi::xml_node root = ControllerXml::load(fieldbusCfg, "FieldbusSettingConfig", document);
    for (const pugi::xml_node& entry : root.children()) {
        const auto role = roles.constFind(QString::fromUtf8(entry.attribute("name").value()));
        pugi::xml_node enable = entry.child("enable");
        if (role == roles.constEnd() || !enable || (enable.text().as_int() == 1) == role.value())
            continue;
        enable.text().set(role.value() ? "1" : "0");
        changed = true;
    }
    return changed ? ControllerXml::save(document) : QByteArray();
}

bool isSlaveFile(const QByteArray& devicenetSlaveXml)
{
    pugi::xml_document document;
    return !ControllerXml::load(devicenetSlaveXml, "devicenet", document).child("Dns").empty();
}

bool readHeartbeat(const QByteArray& heartbeatXml, QMap<QString, HeartbeatWatch>& watches)
{
    pugi::xml_document document;
    const pugi::xml_node root = ControllerXml::load(heartbeatXml, "Fidbus", document);
    if (!root)
        return false;
    for (const BusRole& role : LinkedBusRoles) {
        const std::string key = role.heartbeatKey;
        const pugi::xml_node bus = root.child(role.heartbeatKey);
        watches.insert(QLatin1String(role.name), {bus.child((key + "_Nod_Switch").c_str()).text().as_bool(),
                                                  bus.child((key + "_Timeout").c_str()).text().as_double()});
    }
    return true;
}
