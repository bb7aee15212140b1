#include "FileVersion.h"

#include <algorithm>
#include <iterator>

namespace {

// By their enumerations.
constexpr const char* Acts[] = {"saved", "imported", "undone", "put back"};
constexpr const char* Contents[] = {"kept", "absent", "lost"};

template <typename Enumeration, std::size_t Count>
bool take(const QString& word, const char* const (&words)[Count], Enumeration& value)
{
    const auto* found = std::find_if(std::begin(words), std::end(words),
                                     [&word](const char* known) { return word == QLatin1String(known); });
    value = static_cast<Enumeration>(found - std::begin(words));
    return found != std::end(words);
}

QJsonObject written(const FileVersion::Side& side)
{
    return {{"content", Contents[static_cast<int>(side.content)]}, {"hash", QString::fromLatin1(side.hash)}};
}

bool read(const QJsonValue& value, FileVersion::Side& side)
{
    side.hash = value["hash"].toString().toLatin1();
    return take(value["content"].toString(), Contents, side.content);
}

} // namespace

QJsonObject FileVersion::toJson() const
{
    return {{"number", number},
            {"group", group},
            {"time", time.toUTC().toString(Qt::ISODateWithMs)},
            {"file", file},
            {"act", Acts[static_cast<int>(act)]},
            {"former", written(former)},
            {"sent", written(sent)},
            {"failed", hasFailed}};
}

std::optional<FileVersion> FileVersion::fromJson(const QJsonObject& object)
{
    FileVersion version;
    version.number = static_cast<qint64>(object["number"].toDouble());
    version.group = static_cast<qint64>(object["group"].toDouble());
    version.time = QDateTime::fromString(object["time"].toString(), Qt::ISODateWithMs);
    version.file = object["file"].toString();
    version.hasFailed = object["failed"].toBool();
    if (version.number <= 0 || version.file.isEmpty() || !version.time.isValid() ||
        !take(object["act"].toString(), Acts, version.act) || !read(object["former"], version.former) ||
        !read(object["sent"], version.sent))
        return std::nullopt;
    return version;
}
