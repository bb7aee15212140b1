#ifndef STATUSEVENT_H
#define STATUSEVENT_H

#include "RoleTable.h"

#include <QDateTime>
#include <QJsonObject>
#include <QStringList>

#include <optional>

/// Something that happened: a line of the history.
struct StatusEvent
{
    enum class Kind {
        Started,        ///< the pendant
        ControllerLost, ///< its clock stands still: a restart, or it is gone
        ControllerBack,
        LinkLost,
        LinkBack,
        Refused, ///< the controller did not accept what was announced
        Sent     ///< a file, by this pendant
    };

    QDateTime time = {};
    Kind kind = Kind::Started;
    std::optional<RoleId> role = {};
    qint64 lengthMs = -1;   ///< of what has ended; -1 when its begin was not seen
    QString subject = {};   ///< the file, or what was refused
    QStringList words = {}; ///< in the language of the time
    qint64 version = 0;     ///< number in the store of former files

    QJsonObject toJson() const;
    static std::optional<StatusEvent> fromJson(const QJsonObject& object);
};

#endif
