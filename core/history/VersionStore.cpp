#include "VersionStore.h"

#include "JsonLines.h"

#include <QCryptographicHash>
#include <QDir>
#include <QFileInfo>
#include <QSet>

#include <algorithm>
#include <map>

using Content = FileVersion::Content;

namespace {
constexpr const char* Suffix = ".bytes";
} // namespace

VersionStore::VersionStore(QString folder)
    : VersionStore(std::move(folder), Limits())
{
}

VersionStore::VersionStore(QString folder, Limits limits, WholeFile::Sync sync)
    : m_folder(std::move(folder))
    , m_limits(limits)
    , m_sync(sync)
{
}

QString VersionStore::indexPath() const
{
    return m_folder + QStringLiteral("/index.jsonl");
}

QString VersionStore::pathOf(const QByteArray& hash) const
{
    return m_folder + QLatin1Char('/') + QString::fromLatin1(hash) + QLatin1String(Suffix);
}

QByteArray VersionStore::hashOf(const QByteArray& bytes)
{
    return QCryptographicHash::hash(bytes, QCryptographicHash::Sha1).toHex();
}

// False when there is an index that cannot be read: what it says would be lost with the next one.
bool VersionStore::readIndex(std::vector<FileVersion>& versions) const
{
    QByteArray content;
    if (!WholeFile::read(indexPath(), content))
        return !QFileInfo::exists(indexPath());
    for (const QJsonObject& object : JsonLines::read(content)) {
        if (const std::optional<FileVersion> version = FileVersion::fromJson(object))
            versions.push_back(*version);
    }
    return true;
}

bool VersionStore::writeIndex(const std::vector<FileVersion>& versions) const
{
    QByteArray lines;
    for (const FileVersion& version : versions)
        lines += JsonLines::line(version.toJson());
    return WholeFile::replace(indexPath(), lines, m_sync);
}

std::vector<FileVersion> VersionStore::versions() const
{
    std::vector<FileVersion> all;
    readIndex(all);
    return all;
}

// Only what is what it was: a disk that has changed a bit would put it into the controller.
std::optional<QByteArray> VersionStore::bytes(const FileVersion::Side& side) const
{
    QByteArray content;
    if (side.content != Content::Kept || !WholeFile::read(pathOf(side.hash), content) ||
        hashOf(content) != side.hash)
        return std::nullopt;
    return content;
}

FileVersion::Side VersionStore::keep(const Bytes& bytes) const
{
    if (bytes.content != Content::Kept)
        return {bytes.content, {}};
    const FileVersion::Side side = {Content::Kept, hashOf(bytes.bytes)};
    const bool isKept = this->bytes(side) || WholeFile::replace(pathOf(side.hash), bytes.bytes, m_sync);
    return {isKept ? Content::Kept : Content::Lost, side.hash};
}

qint64 VersionStore::add(FileVersion version, const Bytes& former, const Bytes& sent)
{
    std::vector<FileVersion> all;
    if (!QDir().mkpath(m_folder) || !readIndex(all))
        return 0;
    version.number = all.empty() ? 1 : all.back().number + 1;
    if (version.group == 0)
        version.group = version.number;
    version.former = keep(former);
    version.sent = keep(sent);
    all.push_back(version);
    prune(all);
    const bool isAdded = writeIndex(all);
    // What no index names would only fill the disk.
    if (!isAdded && !readIndex(all = {}))
        return 0;
    removeUnnamed(all);
    return isAdded ? version.number : 0;
}

template <typename Change>
bool VersionStore::change(qint64 number, Change change)
{
    std::vector<FileVersion> all;
    if (!readIndex(all))
        return false;
    const auto version = std::find_if(all.begin(), all.end(), [number](const FileVersion& candidate) {
        return candidate.number == number;
    });
    if (version == all.end())
        return false;
    change(all, version);
    return writeIndex(all);
}

bool VersionStore::setSent(qint64 number, const Bytes& sent)
{
    return change(number, [&](auto&, auto version) { version->sent = keep(sent); });
}

bool VersionStore::setFailed(qint64 number)
{
    return change(number, [](auto&, auto version) { version->hasFailed = true; });
}

// Its contents go with the next version, or were another one's too.
bool VersionStore::remove(qint64 number)
{
    return change(number, [](auto& all, auto version) { all.erase(version); });
}

void VersionStore::prune(std::vector<FileVersion>& versions) const
{
    // From the newest on: what is met after the limit is reached goes.
    std::map<QString, int> counts;
    QSet<QByteArray> hashes;
    qint64 bytes = 0;
    bool isFull = false;
    std::vector<FileVersion> kept;
    for (auto version = versions.rbegin(); version != versions.rend(); ++version) {
        if (++counts[version->file.toLower()] > m_limits.versions)
            continue;
        for (const FileVersion::Side& side : {version->former, version->sent}) {
            if (side.content == Content::Kept && !hashes.contains(side.hash)) {
                hashes.insert(side.hash);
                bytes += QFileInfo(pathOf(side.hash)).size();
            }
        }
        isFull = isFull || bytes > m_limits.bytes;
        if (isFull && !kept.empty())
            break;
        kept.push_back(*version);
    }
    versions.assign(kept.rbegin(), kept.rend());
}

// Also what a power failure has left half written: such a name is that of the content and six letters more.
void VersionStore::removeUnnamed(const std::vector<FileVersion>& versions) const
{
    QSet<QString> named;
    for (const FileVersion& version : versions) {
        for (const FileVersion::Side& side : {version.former, version.sent})
            named.insert(QFileInfo(pathOf(side.hash)).fileName());
    }
    const QDir folder(m_folder);
    const QStringList names = folder.entryList({QLatin1Char('*') + QLatin1String(Suffix) + QLatin1Char('*'),
                                                QFileInfo(indexPath()).fileName() + QStringLiteral(".*")},
                                               QDir::Files);
    for (const QString& name : names) {
        if (!named.contains(name))
            QFile::remove(folder.filePath(name));
    }
}
