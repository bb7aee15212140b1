// Every seed of every target cut at each length and with each bit turned, and the inputs that were once found
// to break a promise. With an argument N only every N-th of them, the first bit of a byte and so on in turn.
#include "Seeds.h"

#include <QDir>
#include <QFile>

#include <csignal>

namespace {

// Told when a promise is broken or the program breaks.
std::string place;

void tell(int signal)
{
    std::fprintf(stderr, "at %s\n", place.c_str());
    std::signal(signal, SIG_DFL);
    std::raise(signal);
}

void feed(const Target& target, const std::string& name, const QByteArray& bytes)
{
    place = std::string(target.name) + ", " + name;
    target.feed(bytes);
}

int feedFound(const Target& target)
{
    const QDir found(QStringLiteral(FOUND_DIRECTORY "/") + QLatin1String(target.name));
    const QStringList names = found.entryList(QDir::Files, QDir::Name);
    for (const QString& name : names) {
        QFile file(found.filePath(name));
        if (!file.open(QIODevice::ReadOnly))
            violated("a found input can be read");
        feed(target, name.toStdString(), file.readAll());
    }
    return names.size();
}

} // namespace

int main(int argc, char* argv[])
{
    const int step = argc > 1 ? std::max(1, std::atoi(argv[1])) : 1;
    std::signal(SIGABRT, tell);
    qint64 cuts = 0;
    qint64 flips = 0;
    int found = 0;
    for (const Target& target : targets()) {
        for (const Seed& seed : seedsOf(target, QStringLiteral(PLANT_DIRECTORY))) {
            for (int length = seed.bytes.size(); length >= 0; length -= step, ++cuts)
                feed(target, seed.name + " cut at " + std::to_string(length), seed.bytes.left(length));
            // An odd number a step beyond a byte's bits meets each of them in turn.
            const int bitStep = step == 1 ? 1 : 8 * step + 1;
            for (int bit = 0; bit < 8 * seed.bytes.size(); bit += bitStep, ++flips) {
                QByteArray bytes = seed.bytes;
                bytes[bit / 8] = static_cast<char>(bytes.at(bit / 8) ^ (1 << bit % 8));
                feed(target, seed.name + " bit " + std::to_string(bit), bytes);
            }
        }
        found += feedFound(target);
    }
    std::printf("%lld cuts, %lld flips, %d found inputs, 0 violations\n", static_cast<long long>(cuts),
                static_cast<long long>(flips), found);
    return 0;
}
