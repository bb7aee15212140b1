#include "FileChanges.h"

#include "KnownFiles.h"
#include "SettingChanges.h"
#include "ZelFunctions.h"

#include <QCoreApplication>

#include <algorithm>

using Content = FileVersion::Content;

namespace {

QString translated(const char* text)
{
    return QCoreApplication::translate("FileChanges", text);
}

// Null bytes stand for a file that is missing, empty ones for an empty file.
QByteArray bytesOf(const VersionStore& store, const FileVersion::Side& side)
{
    const std::optional<QByteArray> bytes = store.bytes(side);
    return bytes && bytes->isNull() ? QByteArray("") : bytes.value_or(QByteArray());
}

bool isKnown(const VersionStore& store, const FileVersion::Side& side)
{
    return side.content == Content::Absent || store.bytes(side);
}

void tellChanges(const VersionStore& store, const FileVersion& version, FileChanges::Words& words)
{
    const std::vector<Settings::Change> changes = Settings::changes(
        FileChanges::nameOf(version), bytesOf(store, version.former), bytesOf(store, version.sent));
    for (const Settings::Sentence& sentence : Settings::inWords(changes))
        words.lines << sentence.title + QLatin1String(": ") + sentence.text;
    for (const Settings::Change& change : changes)
        words.role = words.role ? words.role : change.role;
    if (changes.empty())
        words.lines << translated(QT_TRANSLATE_NOOP("FileChanges", "No setting was changed."));
}

} // namespace

VersionStore FileChanges::store()
{
    static const QString folder =
        ZelGetLocalizedFileName(QStringLiteral("../Application/fidbus/versions"), 1);
    return VersionStore(folder);
}

const KnownFile* FileChanges::fileOf(const FileVersion& version)
{
    const auto& all = KnownFiles::all();
    const auto* found = std::find_if(all.begin(), all.end(), [&version](const KnownFile& file) {
        return version.file.compare(QLatin1String(file.controller), Qt::CaseInsensitive) == 0;
    });
    return found == all.end() ? nullptr : found;
}

QString FileChanges::nameOf(const FileVersion& version)
{
    const KnownFile* file = fileOf(version);
    return file ? QLatin1String(file->name) : version.file;
}

FileChanges::Words FileChanges::wordsOf(const VersionStore& store, const FileVersion& version)
{
    Words words;
    if (version.hasFailed)
        words.lines << translated(
            QT_TRANSLATE_NOOP("FileChanges", "The transfer failed; what it left behind is not known."));
    if (version.former.content == Content::Lost)
        words.lines << translated(QT_TRANSLATE_NOOP("FileChanges", "The former file could not be kept."));
    else if (version.sent.content == Content::Lost)
        words.lines << translated(QT_TRANSLATE_NOOP("FileChanges", "What was sent could not be read back."));
    else if (!isKnown(store, version.former) || !isKnown(store, version.sent))
        words.lines << translated(QT_TRANSLATE_NOOP("FileChanges", "What was kept can no longer be read."));
    else
        tellChanges(store, version, words);
    return words;
}

std::vector<FileChanges::Change> FileChanges::grouped(const std::vector<FileVersion>& versions)
{
    std::vector<Change> changes;
    for (const FileVersion& version : versions) {
        const auto same = std::find_if(changes.begin(), changes.end(), [&version](const Change& change) {
            return change.front().group == version.group;
        });
        if (same == changes.end())
            changes.push_back({version});
        else
            same->push_back(version);
    }
    std::reverse(changes.begin(), changes.end());
    return changes;
}
