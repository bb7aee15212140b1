// Which roles are on, and which of them are watched.

#include "HeartbeatFile.h"
#include "KeptXml.h"
#include "RoleListFile.h"
#include "SettingReaders.h"

#include <algorithm>

namespace Settings {

namespace {

Group groupNamed(const QString& name)
{
    const auto* role =
        std::find_if(RoleTable::Roles.begin(), RoleTable::Roles.end(), [&name](const RoleInfo& info) {
            return name.compare(QLatin1String(info.name), info.spelling) == 0;
        });
    return role == RoleTable::Roles.end() ? Group{name, nullptr, false, {}} : groupOf(role->id);
}

} // namespace

std::optional<std::vector<Group>> roleList(const QByteArray& bytes)
{
    std::vector<ListedRole> roles;
    if (!RoleListFile::read(bytes, roles))
        return std::nullopt;
    std::vector<Group> groups;
    for (const ListedRole& role : roles) {
        const RoleInfo* known = RoleTable::named(role.name);
        groups.push_back(known ? groupOf(known->id) : Group{role.name, nullptr, false, {}});
        groups.back().fields = {
            {translated(QT_TRANSLATE_NOOP("Settings", "switch")), switchText(role.on), false}};
    }
    return groups;
}

// The fieldbus manager's own record of the switches, which follows the role list at a restart.
std::optional<std::vector<Group>> switchFile(const QByteArray& bytes)
{
    pugi::xml_document document;
    const pugi::xml_node root = KeptXml::load(bytes, "FieldbusSettingConfig", document);
    if (!root)
        return std::nullopt;
    std::vector<Group> groups;
    for (const pugi::xml_node entry : root.children()) {
        const QString name = KeptXml::text(entry.attribute("name"));
        if (name.isEmpty())
            continue;
        groups.push_back(groupNamed(name));
        groups.back().fields = {{translated(QT_TRANSLATE_NOOP("Settings", "switch that runs")),
                                 switchText(entry.child("enable").text().as_int() == 1), false}};
    }
    return groups;
}

std::optional<std::vector<Group>> heartbeat(const QByteArray& bytes)
{
    HeartbeatConfig config;
    if (!HeartbeatFile::read(bytes, config))
        return std::nullopt;
    std::vector<Group> groups;
    for (const HeartbeatConfig::Field& field : HeartbeatConfig::fields()) {
        const auto* role =
            std::find_if(RoleTable::Roles.begin(), RoleTable::Roles.end(), [&field](const RoleInfo& info) {
                return info.heartbeatKey && qstrcmp(info.heartbeatKey, field.bus) == 0;
            });
        if (role == RoleTable::Roles.end())
            continue;
        Group group = groupOf(role->id);
        group.fields = {
            {translated(QT_TRANSLATE_NOOP("Settings", "heartbeat")), switchText(config.*field.nodSwitch)},
            {translated(QT_TRANSLATE_NOOP("Settings", "heartbeat time-out")),
             withUnit(HeartbeatConfig::timeoutText(config.*field.timeout), "s")}};
        groups.push_back(group);
    }
    return groups;
}

} // namespace Settings
