#include "StatusEvent.h"

#include <QJsonArray>

#include <algorithm>

namespace {

// By StatusEvent::Kind.
constexpr const char* Kinds[] = {
    "started", "controller lost", "controller back", "link lost", "link back", "refused", "sent"};

} // namespace

QJsonObject StatusEvent::toJson() const
{
    QJsonObject object = {{"time", time.toUTC().toString(Qt::ISODateWithMs)},
                          {"kind", Kinds[static_cast<int>(kind)]}};
    if (role)
        object["role"] = RoleTable::nameOf(*role);
    if (lengthMs >= 0)
        object["ms"] = lengthMs;
    if (!subject.isEmpty())
        object["subject"] = subject;
    if (!words.isEmpty())
        object["words"] = QJsonArray::fromStringList(words);
    if (version > 0)
        object["version"] = version;
    return object;
}

std::optional<StatusEvent> StatusEvent::fromJson(const QJsonObject& object)
{
    const QString kind = object["kind"].toString();
    const auto* found = std::find_if(std::begin(Kinds), std::end(Kinds),
                                     [&kind](const char* known) { return kind == QLatin1String(known); });
    StatusEvent event;
    event.time = QDateTime::fromString(object["time"].toString(), Qt::ISODateWithMs);
    if (found == std::end(Kinds) || !event.time.isValid())
        return std::nullopt;
    event.kind = static_cast<Kind>(found - std::begin(Kinds));
    if (const RoleInfo* role = RoleTable::named(object["role"].toString()))
        event.role = role->id;
    event.lengthMs = static_cast<qint64>(object["ms"].toDouble(-1));
    event.subject = object["subject"].toString();
    for (const QJsonValue word : object["words"].toArray())
        event.words << word.toString();
    event.version = static_cast<qint64>(object["version"].toDouble());
    return event;
}
