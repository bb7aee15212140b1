#include "ServiceFiles.h"

#include "BusFileDataManager.h"
#include "ControllerCopies.h"
#include "Poll.h"
#include "SysSettingApi.h"

namespace {

constexpr Poll::Rule Answered = {50, 300};

enum Kind { Read, Sent };

struct Holding
{
    ConfigFile file;
    const char* path; // by which the service names it
    void (BusFileDataManager::*fetch)();
    QDateTime readAt;
    int version = 0;     // of the controller's file that the service holds
    bool isGood = false; // its last reading, or sending, left it with a file
    int readings = 0;
    int answers = 0;
    int asked = 0;        // requests that were not answered yet
    int askedVersion = 0; // at the last of them
};

std::array<Holding, 2>& holdings()
{
    static std::array<Holding, 2> all = {{
        {ConfigFile::BusRoles, FileLocations::FieldbusXml, &BusFileDataManager::emitGetFieldXml, {}},
        {ConfigFile::IoMapping,
         FileLocations::FieldbusConfigXml,
         &BusFileDataManager::emitGetFieldbusCfg,
         {}},
    }};
    return all;
}

Holding& of(ConfigFile file)
{
    return holdings()[file == ConfigFile::BusRoles ? 0 : 1];
}

int versionOf(ConfigFile file)
{
    return ControllerCopies::instance().version(file);
}

const ServiceFiles* listener = nullptr;

} // namespace

ServiceFiles::ServiceFiles()
{
    listener = this;
    for (Holding& holding : holdings())
        holding.asked = 0; // what is answered without a listener is not heard
    setIsFieldXml(true);
    setIsFieldbusCfg(true);
    BusFileDataManager::getInstance()->attach(this);
}

ServiceFiles::~ServiceFiles()
{
    BusFileDataManager::getInstance()->detach(this);
    listener = nullptr;
}

void ServiceFiles::noteHeld(ConfigFile file)
{
    Holding& holding = of(file);
    if (holding.readings > 0)
        return;
    holding.isGood = true;
    holding.version = versionOf(file);
    holding.readAt = QDateTime::currentDateTime();
    ++holding.readings;
}

bool ServiceFiles::isCurrent(ConfigFile file)
{
    const Holding& holding = of(file);
    return holding.isGood && holding.version == versionOf(file);
}

QDateTime ServiceFiles::readAt(ConfigFile file)
{
    return of(file).readAt;
}

int ServiceFiles::readings(ConfigFile file)
{
    return of(file).readings;
}

void ServiceFiles::request(ConfigFile file)
{
    Holding& holding = of(file);
    ++holding.asked;
    holding.askedVersion = versionOf(file);
    (BusFileDataManager::getInstance()->*holding.fetch)();
}

void ServiceFiles::requestAll()
{
    for (const Holding& holding : holdings())
        request(holding.file);
}

bool ServiceFiles::read(ConfigFile file)
{
    const Holding& holding = of(file);
    const int answers = holding.answers;
    if (holding.asked == 0 || holding.askedVersion != versionOf(file))
        request(file);
    const auto isAnswered = [&holding, answers] { return !listener || holding.answers != answers; };
    Poll::wait(Answered, nullptr, SysSettingApi::delay_MSec, isAnswered);
    return listener && holding.answers != answers && isCurrent(file);
}

void ServiceFiles::busNotification(int kind, const QString& path, bool success)
{
    ControllerCopies& copies = ControllerCopies::instance();
    for (Holding& holding : holdings()) {
        if (path != QLatin1String(holding.path))
            continue;
        if (kind == Sent) {
            // Also what was not sent may have left anything behind. The service holds what was to be sent.
            copies.changed(path);
            holding.version = versionOf(holding.file);
            continue;
        }
        if (kind != Read)
            continue;
        const bool isOwn = holding.asked > 0;
        holding.asked -= isOwn ? 1 : 0;
        ++holding.answers;
        if (success) {
            // What somebody else had it read may be anything.
            if (!isOwn)
                copies.changed(path);
            holding.version = isOwn ? holding.askedVersion : versionOf(holding.file);
            holding.readAt = QDateTime::currentDateTime();
            ++holding.readings;
        }
        holding.isGood = success;
    }
}
