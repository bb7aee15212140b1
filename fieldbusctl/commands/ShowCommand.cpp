#include "ShowCommand.h"

#include "Console.h"
#include "LoadedFolder.h"
#include "RoleSettings.h"
#include "SettingReaders.h"

#include <QJsonArray>

#include <algorithm>

using Settings::Field;
using Settings::Group;
using Tone = Console::Tone;

namespace {

constexpr int NameWidth = 26;
constexpr int LineWidth = 84;

bool isShown(const RoleSettings::Part& part)
{
    return !part.group.isMapping && part.path != QLatin1String("fieldbus.xml");
}

bool isOfMode(const Group& group, bool isFree)
{
    const bool isFixed = group.title.contains(QLatin1String(", fixed"));
    const bool isFreeTitle = group.title.contains(QLatin1String(", free"));
    return (isFree && !isFixed) || (!isFree && !isFreeTitle);
}

void printRow(const QString& name, const QString& value, Console& console)
{
    console.line(QStringLiteral("  %1 %2").arg(name, -NameWidth).arg(console.painted(Tone::Plain, value)));
}

// What the heading says already: the switch, where what runs is what is switched.
bool isTold(const RoleSettings& settings, const RoleSettings::Part& part)
{
    return part.path == QLatin1String("Fieldbus.cfg") &&
           part.group.fields.front().value == Settings::switchText(settings.isOn);
}

void printFields(const Group& group, Console& console)
{
    for (const Field& field : group.fields) {
        if (!field.value.isEmpty())
            printRow(field.name, field.value, console);
    }
}

// A group within a role in as few lines as hold it: a device, the bits of a block.
void printPacked(const Group& group, Console& console)
{
    QString name = group.title.section(QLatin1String(", "), -1);
    QString line;
    for (const Field& field : group.fields) {
        const QString part = field.value.isEmpty() ? QString() : field.name + QLatin1Char(' ') + field.value;
        if (!line.isEmpty() && line.size() + part.size() > LineWidth) {
            printRow(name, line + QLatin1Char(','), console);
            name.clear();
            line.clear();
        }
        line += (line.isEmpty() || part.isEmpty() ? QString() : QStringLiteral(", ")) + part;
    }
    if (!line.isEmpty())
        printRow(name, line, console);
}

// "Bool 640 (0 to 79), Int 40 (80 to 159)".
QString mappingText(const Group& group)
{
    QStringList parts;
    for (std::size_t i = 0; i + 1 < group.fields.size(); ++i) {
        const Field& quantity = group.fields[i];
        const Field& place = group.fields[i + 1];
        if (quantity.isAddress || quantity.value == QLatin1String("0"))
            continue;
        parts << quantity.name + QLatin1Char(' ') + quantity.value +
                     (place.isAddress && !place.value.isEmpty() ? QStringLiteral(" (%1)").arg(place.value)
                                                                : QString());
    }
    return parts.join(QLatin1String(", "));
}

void printRole(const RoleSettings& settings, bool isFree, Console& console)
{
    const QString title = settings.role ? QLatin1String(settings.role->title) : QStringLiteral("Robot");
    const char* state = !settings.isListed ? "not offered" : settings.isOn ? "on" : "off";
    console.line();
    console.line(console.painted(Tone::Heading, title) +
                 (settings.role
                      ? QStringLiteral(": ") +
                            console.painted(settings.isOn ? Tone::Good : Tone::Faint, QLatin1String(state))
                      : QString()));
    for (const RoleSettings::Part& part : settings.parts) {
        const bool isOwn = settings.role && part.group.title == QLatin1String(settings.role->title);
        if (isShown(part) && !isTold(settings, part))
            isOwn ? printFields(part.group, console) : printPacked(part.group, console);
    }
    for (const RoleSettings::Part& part : settings.parts) {
        const QString text =
            part.group.isMapping && isOfMode(part.group, isFree) ? mappingText(part.group) : QString();
        if (!text.isEmpty())
            printRow(QLatin1String("mapping, ") + part.group.title.section(QLatin1String(", "), -1), text,
                     console);
    }
}

void print(const std::vector<RoleSettings>& all, const LoadedFolder& folder, const RoleInfo* only,
           Console& console)
{
    const bool isFree = folder.configuration().mode() == MappingConfig::Free;
    console.line(console.painted(Tone::Heading, folder.folder().path) +
                 (folder.folder().layout == Folder::Layout::Export
                      ? QStringLiteral(" (export)")
                      : QStringLiteral(" (controller's files)")));
    QStringList off;
    for (const RoleSettings& settings : all) {
        if (only ? settings.role == only : settings.isOn && !settings.parts.empty())
            printRole(settings, isFree, console);
        else if (!only && settings.role && settings.isListed)
            off << QLatin1String(settings.role->title);
    }
    if (!off.isEmpty()) {
        console.line();
        console.line(console.painted(Tone::Faint, QLatin1String("Off: ") + off.join(QLatin1String(", "))));
    }
}

QJsonObject jsonOf(const RoleSettings& settings)
{
    QJsonArray groups;
    for (const RoleSettings::Part& part : settings.parts) {
        QJsonArray fields;
        for (const Field& field : part.group.fields)
            fields.append(QJsonObject{{"name", field.name}, {"value", field.value}});
        groups.append(QJsonObject{{"title", part.group.title}, {"file", part.path}, {"fields", fields}});
    }
    QJsonObject json{{"groups", groups}};
    if (settings.role) {
        json.insert("name", QLatin1String(settings.role->name));
        json.insert("title", QLatin1String(settings.role->title));
        json.insert("listed", settings.isListed);
        json.insert("on", settings.isOn);
    }
    return json;
}

} // namespace

void ShowCommand::addOptions(CLI::App& app)
{
    m_folders.addOne(app);
    app.add_option("--role", m_role,
                   "one role alone, be it on or off: EtherNetIPSlave, \"EtherNet/IP slave\" or Eip");
    app.add_flag("--json", m_json, "print JSON");
}

ExitCode ShowCommand::run(Console& console)
{
    const QString name = QString::fromStdString(m_role);
    const RoleInfo* only = roleCalled(name);
    if (!name.isEmpty() && !only) {
        Console::complain(QStringLiteral("no role is called \"%1\"; there are %2").arg(name, roleNames()));
        return ExitTrouble;
    }
    const std::vector<Folder> folders = m_folders.find();
    if (folders.empty())
        return ExitTrouble;
    const LoadedFolder folder(folders.front());
    for (const QString& trouble : folder.troubles())
        Console::complain(trouble);
    const ExitCode code = folder.isIncomplete() ? ExitTrouble : ExitSame;
    const std::vector<RoleSettings> all = RoleSettings::of(folder.configuration());
    if (!m_json) {
        print(all, folder, only, console);
        return code;
    }
    QJsonArray roles;
    for (const RoleSettings& settings : all) {
        if (settings.role && (!only || settings.role == only))
            roles.append(jsonOf(settings));
    }
    QJsonObject content{{"folder", folder.json()}, {"roles", roles}};
    if (!only)
        content.insert("others", jsonOf(all.back()).value("groups"));
    console.json("show", content);
    return code;
}
