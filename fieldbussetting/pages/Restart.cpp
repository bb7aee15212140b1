#include "Restart.h"

#include "BusFileDataManager.h"
#include "ControllerVariables.h"
#include "Poll.h"
#include "SysSettingApi.h"

#include <optional>
#include <utility>

namespace {

constexpr unsigned BetweenRestartsMs = 100; // controller first, then the pendant
constexpr Poll::Rule ClockReadings = {600, 10};

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
    std::optional<double> last; // none to compare the first reading with
    const auto standsStill = [&last] {
        const double now = ControllerVariables::ifidbus_current_time;
        return std::exchange(last, now) == now;
    };
    return Poll::wait(ClockReadings, nullptr, SysSettingApi::delay_MSec, standsStill) == Poll::Answer::Yes;
}
