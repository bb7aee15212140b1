#ifndef CONTROLLER_PROFISAFEDEVICE_H
#define CONTROLLER_PROFISAFEDEVICE_H

#include "Behaviour.h"

#include <array>
#include <vector>

/// The ProfiSAFE slave. Its process data are 16 elements of 8 bits, the outputs of the safety controller in
/// the first eight, the robot's inputs to it in the others; bit n of a block is bit n % 8 of its element
/// n / 8. Some inputs follow outputs. While it is absent, or the controller is down, all its variables are 0
/// and it takes no command.
class ProfisafeDevice : public Behaviour
{
    Q_OBJECT

public:
    enum Block { Output, Input };
    static constexpr int BitsPerBlock = 64;
    /// What "io_man.profisafe_local_wo" asks for, in its first element.
    enum Command { ConfirmError = 1, ResetEmergencyStop = 2 };
    /// Inputs that stand until a command takes them back.
    static constexpr int EmergencyStopInput = 0;
    static constexpr int FaultInput = 12;

    explicit ProfisafeDevice(ControllerParts& controllerParts);

    /// "io_man.profisafe_status".
    bool isPresent() const;
    void setPresent(bool present);

    /// 0 to 3: not used, from the controller, from the external PLC, not used. Other bits are cut off.
    void setFeedVoltage(int mode);
    int feedVoltage() const { return m_feedVoltage; }

    /// Bits beyond the block are ignored.
    void setBit(Block block, int bit, bool on);
    bool bit(Block block, int bit) const;

    /// Carried out since power-on, the oldest first.
    const std::vector<int>& commandsTaken() const { return m_commandsTaken; }

    void restarted() override;
    void wentDown() override;

private:
    void takeCommand(int command);
    void followOutputs();
    void publish();

    std::array<int, 16> m_processData{};
    int m_feedVoltage = 1;
    std::vector<int> m_commandsTaken;
};

#endif
