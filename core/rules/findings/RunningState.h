#ifndef RUNNINGSTATE_H
#define RUNNINGSTATE_H

#include "RoleTable.h"

#include <QByteArray>
#include <QHash>
#include <QString>

#include <optional>

/// What runs on a controller, as far as it is known.
struct RunningState
{
    /// Values of the controller's variables by name; an element of a vector is "ifidbus.dnm_status[3]". A
    /// Bool is 0 or 1. What is not in it is not known.
    QHash<QString, int> variables;

    /// The roles that came up with the last restart; nothing when that is not known.
    std::optional<RoleTable::States> running;

    /// How long the link of a role has been down, in seconds; by RoleId, nothing when it is up or not known.
    std::array<std::optional<double>, RoleCount> downFor;

    /// Files as they were when the controller came up, by FileId; none where that is not known.
    QHash<int, QByteArray> cameUp;

    bool profisafePresent = false;

    std::optional<int> value(const QString& name) const
    {
        const auto found = variables.find(name);
        return found == variables.end() ? std::nullopt : std::optional<int>(*found);
    }
    std::optional<int> value(const char* vector, int element) const
    {
        return value(QStringLiteral("%1[%2]").arg(QLatin1String(vector)).arg(element));
    }
};

#endif
