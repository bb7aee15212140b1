#include "ProfisafeDevice.h"

#include "ControllerParts.h"

namespace {

constexpr auto Status = "io_man.profisafe_status";
constexpr auto CommandWord = "io_man.profisafe_local_wo";
constexpr auto LocalState = "io_man.profisafe_local_ro";
constexpr auto ProcessData = "io_man.profisafe_ext_ro";

constexpr int CommandElement = 0;
constexpr int VoltageElement = 3;
constexpr int VoltageMask = 3;
constexpr int BitsPerElement = 8;

// How long the device takes, in milliseconds.
constexpr int CommandMs = 1500;
constexpr int FollowMs = 200;

// Inputs by which the robot confirms what it was told.
struct Echo
{
    int output;
    int input;
};
constexpr Echo Echoes[] = {{1, 1}, {3, 3}, {4, 2}};

// As the cell is delivered: gates closed, drives enabled, in automatic mode, standing at a fault.
constexpr int OutputsAtStart[] = {1, 2, 4, 6, 7, 9};
constexpr int InputsAtStart[] = {1, 2, 6, 8, 11, 12};

int elementOf(ProfisafeDevice::Block block, int bit)
{
    constexpr int ElementsPerBlock = ProfisafeDevice::BitsPerBlock / BitsPerElement;
    return static_cast<int>(block) * ElementsPerBlock + bit / BitsPerElement;
}

} // namespace

ProfisafeDevice::ProfisafeDevice(ControllerParts& controllerParts)
    : Behaviour(controllerParts)
{
    for (const int bit : OutputsAtStart)
        setBit(Output, bit, true);
    for (const int bit : InputsAtStart)
        setBit(Input, bit, true);
    dropDelayed();

    parts().variables.watch(QLatin1String(CommandWord), [this](int element, double value) {
        if (element == CommandElement)
            takeCommand(static_cast<int>(value));
    });
    connect(&parts().variables, &VariableStore::changed, this, [this](const QString& name) {
        if (name == QLatin1String(Status))
            publish();
    });
}

bool ProfisafeDevice::isPresent() const
{
    return parts().variables.value(QLatin1String(Status)) == 1.0;
}

void ProfisafeDevice::setPresent(bool present)
{
    parts().variables.set(QLatin1String(Status), present ? 1.0 : 0.0);
}

void ProfisafeDevice::setFeedVoltage(int mode)
{
    m_feedVoltage = mode & VoltageMask;
    publish();
}

void ProfisafeDevice::setBit(Block block, int bit, bool on)
{
    if (bit < 0 || bit >= BitsPerBlock)
        return;
    int& element = m_processData[static_cast<std::size_t>(elementOf(block, bit))];
    const int mask = 1 << bit % BitsPerElement;
    element = on ? element | mask : element & ~mask;
    publish();
    if (block == Output)
        later(QLatin1String(ProcessData), FollowMs, [this] { followOutputs(); });
}

bool ProfisafeDevice::bit(Block block, int bit) const
{
    return bit >= 0 && bit < BitsPerBlock &&
           (m_processData[static_cast<std::size_t>(elementOf(block, bit))] >> bit % BitsPerElement & 1) != 0;
}

void ProfisafeDevice::followOutputs()
{
    for (const Echo& echo : Echoes)
        setBit(Input, echo.input, bit(Output, echo.output));
}

// A word with both commands is carried out as both.
void ProfisafeDevice::takeCommand(int command)
{
    const QString name = QLatin1String(CommandWord);
    drop(name);
    if (command == 0 || !isPresent() || parts().faults.strikes(Faults::CommandNeverTaken, name))
        return;
    later(name, CommandMs, [this, name, command] {
        if (!isPresent())
            return;
        m_commandsTaken.push_back(command);
        if ((command & ConfirmError) != 0)
            setBit(Input, FaultInput, false);
        if ((command & ResetEmergencyStop) != 0)
            setBit(Input, EmergencyStopInput, false);
        parts().variables.set(name, CommandElement, 0.0);
    });
}

void ProfisafeDevice::publish()
{
    const bool isThere = isControllerUp() && isPresent();
    VariableStore& variables = parts().variables;
    for (std::size_t element = 0; element < m_processData.size(); ++element)
        variables.set(QLatin1String(ProcessData), static_cast<int>(element),
                      isThere ? m_processData[element] : 0);
    variables.set(QLatin1String(LocalState), VoltageElement, isThere ? m_feedVoltage : 0);
}

void ProfisafeDevice::restarted()
{
    parts().variables.set(QLatin1String(CommandWord), CommandElement, 0.0);
    followOutputs();
    publish();
}

void ProfisafeDevice::wentDown()
{
    publish();
}
