#include "Seeds.h"

#include "KnownFiles.h"
#include "WholeFile.h"

namespace {

QByteArray fileAt(const QString& plantDirectory, const char* path)
{
    QByteArray bytes;
    if (!WholeFile::read(plantDirectory + QLatin1Char('/') + QLatin1String(path), bytes))
        violated(path);
    return bytes;
}

} // namespace

std::vector<Seed> seedsOf(const Target& target, const QString& plantDirectory)
{
    std::vector<Seed> seeds;
    for (const char* text : target.seeds) {
        if (*text == '#') {
            seeds.push_back({text, QByteArray::fromHex(text + 1)});
        } else if (*text != '*') {
            seeds.push_back({text, fileAt(plantDirectory, text)});
        } else {
            for (const KnownFile& file : KnownFiles::all()) {
                QByteArray bytes;
                if (WholeFile::read(plantDirectory + QString::fromLatin1(file.controller), bytes))
                    seeds.push_back({file.name, bytes.prepend(static_cast<char>(file.id))});
            }
        }
    }
    if (seeds.empty())
        violated("every target has a seed");
    return seeds;
}
