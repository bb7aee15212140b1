#ifndef SWITCHSAVE_H
#define SWITCHSAVE_H

#include "ExitPermission.h"
#include "PageBase.h"
#include "Poll.h"
#include "WaitNotice.h"

#include <QCoreApplication>

#include <optional>

class SwitchBoard;

/// What the save of the bus switches asks of their page, beyond the steps of every page.
class SwitchSaveHost
{
public:
    /// Brings the switches back to what the controller runs.
    virtual Outcome reload() = 0;
    /// Whether the devices of the EtherCAT slave are known.
    virtual bool isOverrideRead() const = 0;
    /// While a save is under way the page takes no input.
    virtual void takeInput(bool take) = 0;
    /// Messages of the override file.
    virtual const TransferTexts& overrideTexts() const = 0;

protected:
    ~SwitchSaveHost() = default;
};

/// The save of the bus switches: from the checks over the override file, the variables and the commands to
/// the bus configuration and the restart. The idle ticks of the host carry it on while the controller takes
/// the commands.
class SwitchSave
{
    Q_DECLARE_TR_FUNCTIONS(BusSettingWidget)

public:
    /// `page` and `host` are the page that this is a member of; `board` has its switches.
    SwitchSave(PageBase& page, SwitchSaveHost& host, SwitchBoard& board);

    bool isUnderWay() const { return m_state != State::Idle; }
    /// Whether `step` has something to do.
    bool isWaiting() const { return m_state == State::Waiting || m_state == State::Looking; }

    // The page may be gone after each of these.
    /// Checks the rules, asks, and begins.
    void begin();
    /// Looks whether the controller has taken what it was told. Waits a moment when it has not; one that
    /// comes in that wait does nothing.
    void step();
    /// The service has written and sent the bus configuration, or could not.
    void finish(bool sent);

private:
    enum class State {
        Idle,
        Writing, ///< the override file
        Waiting, ///< for the controller to take commands and bus type
        Looking, ///< ... in the wait between two looks
        Ending   ///< what comes after the wait, whichever way it ended
    };
    Outcome writeOverride();
    void announce();
    /// Waits for the next look; false when there have been enough of them.
    bool waitFor(Poll& poll);
    QStringList untakenCommands() const;
    void giveUp(const QStringList& messages);
    void sendSwitches();
    void restart();
    void end();

    PageBase& m_page;
    SwitchSaveHost& m_host;
    SwitchBoard& m_board;
    State m_state = State::Idle;
    Poll m_commands{{100, 100}}; // 10 s for each
    Poll m_busType{{50, 200}};
    std::optional<PageBase::Busy> m_busy;
    WaitNotice m_notice;
    ExitPermission m_exit;        // while it waits for the controller
    ExitPermission m_exitForGood; // for the page's life, whatever a later save brings
};

#endif
