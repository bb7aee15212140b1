// A libFuzzer program. LAB_TARGET in the environment names the target; "seeds DIRECTORY" as the only
// arguments writes the seeds of all targets below it and ends.
#include "Seeds.h"

#include <QDir>
#include <QFile>

#include <cstring>

namespace {

const Target* chosen = nullptr;

void writeSeeds(const QString& directory)
{
    for (const Target& target : targets()) {
        const QString folder = directory + QLatin1Char('/') + QLatin1String(target.name);
        QDir().mkpath(folder);
        int number = 0;
        for (const Seed& seed : seedsOf(target, QStringLiteral(PLANT_DIRECTORY))) {
            QFile file(folder + QStringLiteral("/seed%1").arg(number++));
            if (!file.open(QIODevice::WriteOnly) || file.write(seed.bytes) != seed.bytes.size())
                violated("a seed can be written");
        }
    }
}

} // namespace

extern "C" int LLVMFuzzerInitialize(int* argc, char*** argv)
{
    if (*argc == 3 && std::strcmp((*argv)[1], "seeds") == 0) {
        writeSeeds(QFile::decodeName((*argv)[2]));
        for (const Target& target : targets())
            std::printf("%s\n", target.name);
        std::exit(0);
    }
    const char* name = std::getenv("LAB_TARGET");
    for (const Target& target : targets()) {
        if (name && std::strcmp(target.name, name) == 0)
            chosen = &target;
    }
    if (!chosen) {
        std::fprintf(stderr, "LAB_TARGET names no target\n");
        std::exit(2);
    }
    return 0;
}

extern "C" int LLVMFuzzerTestOneInput(const unsigned char* data, std::size_t size)
{
    chosen->feed(QByteArray(reinterpret_cast<const char*>(data), static_cast<int>(size)));
    return 0;
}
