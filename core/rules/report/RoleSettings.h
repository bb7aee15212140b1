#ifndef ROLESETTINGS_H
#define ROLESETTINGS_H

#include "Configuration.h"
#include "Settings.h"

#include <QString>

#include <vector>

/// The settings of a configuration, gathered by role.
struct RoleSettings
{
    /// Settings that belong together, and the file that they stand in.
    struct Part
    {
        QString path;
        Settings::Group group;
    };

    const RoleInfo* role; ///< null for what is of no role
    bool isListed;        ///< fieldbus.xml lists it
    bool isOn;
    std::vector<Part> parts;

    /// Every role in the order of the table, and last what is of no role.
    static std::vector<RoleSettings> of(const Configuration& configuration);
};

/// The role that people call `text`: its name, its title, or its key in heartbeat.xml, whatever the case.
/// Null when it is none.
const RoleInfo* roleCalled(const QString& text);

/// What roles can be called, for a message.
QString roleNames();

#endif
