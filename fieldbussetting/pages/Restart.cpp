#include "Restart.h"

#include "BusFileDataManager.h"
#include "ControllerVariables.h"
#include "SysSettingApi.h"

namespace {

constexpr unsigned BetweenRestartsMs = 100; // controller first, then the pendant
constexpr int ClockReadings = 10;
constexpr unsigned BetweenReadingsMs = 600;

} // namespace

bool Restart::isAllowed()
{
    return BusFileDataManager::getInstance()->isRebootRde();
}

void Restart::perform(Way way)
{
    if (way == Way::WhenAllowed) {
        if (!isAllowed())
            return;
        SysSettingApi::delay_MSec(BeforeRestartMs);
    }
    SysSettingApi::rebootRde(true, true);
    SysSettingApi::delay_MSec(BetweenRestartsMs);
    SysSettingApi::rebootTpu(true);
}

bool Restart::controllerStopped()
{
    for (int reading = 0; reading < ClockReadings; ++reading) {
        const double before = ControllerVariables::ifidbus_current_time;
        SysSettingApi::delay_MSec(BetweenReadingsMs);
        if (ControllerVariables::ifidbus_current_time.getValue() == before)
            return true;
    }
    return false;
}
