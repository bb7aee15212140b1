#include "RoleSettings.h"

#include <QStringList>

#include <algorithm>

std::vector<RoleSettings> RoleSettings::of(const Configuration& configuration)
{
    std::vector<RoleSettings> all;
    for (const RoleInfo& role : RoleTable::Roles) {
        const auto isIt = [&role](const ListedRole& listed) {
            return listed.name == QLatin1String(role.name);
        };
        const bool isListed = std::any_of(configuration.listed.begin(), configuration.listed.end(), isIt);
        all.push_back({&role, isListed, configuration.isOn(role.id), {}});
    }
    all.push_back({nullptr, true, true, {}});
    for (const KnownFile& file : KnownFiles::all()) {
        const QString name = QLatin1String(file.name);
        for (Settings::Group& group : Settings::groupsOf(name, configuration.presentBytes(file.id))) {
            const auto place = group.role ? static_cast<std::size_t>(group.role->id) : all.size() - 1;
            all[place].parts.push_back({name, std::move(group)});
        }
    }
    // What runs before its variants.
    for (RoleSettings& settings : all) {
        std::stable_partition(settings.parts.begin(), settings.parts.end(), [&settings](const Part& part) {
            return settings.role && part.group.title == QLatin1String(settings.role->title);
        });
    }
    return all;
}

const RoleInfo* roleCalled(const QString& text)
{
    const auto isCalled = [&text](const char* name) {
        return name && text.compare(QLatin1String(name), Qt::CaseInsensitive) == 0;
    };
    const auto* found =
        std::find_if(RoleTable::Roles.begin(), RoleTable::Roles.end(), [&isCalled](const RoleInfo& role) {
            return isCalled(role.name) || isCalled(role.title) || isCalled(role.heartbeatKey);
        });
    return found == RoleTable::Roles.end() ? nullptr : found;
}

QString roleNames()
{
    QStringList names;
    for (const RoleInfo& role : RoleTable::Roles)
        names << QLatin1String(role.name);
    return names.join(QLatin1String(", "));
}
