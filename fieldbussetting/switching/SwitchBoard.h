#ifndef SWITCHBOARD_H
#define SWITCHBOARD_H

#include "BusSwitches.h"

#include <QCoreApplication>

#include <array>

class QComboBox;
class QGridLayout;
class QLabel;
class QWidget;

/// The switches of a page: what each shows, what the controller runs, and which roles with a command were
/// changed.
class SwitchBoard
{
    Q_DECLARE_TR_FUNCTIONS(BusSettingWidget)

public:
    using Switch = BusSwitches::Switch;

    /// Makes the switches as children of `page`, before its form is built, which connects them to their slots
    /// by name. What runs is what the bus file data service knows now.
    explicit SwitchBoard(QWidget* page);
    /// Puts them, with their labels, into the form's layout.
    void layOut(QGridLayout* layout);

    QComboBox* combo(Switch which) const { return m_combos[which]; }
    /// Whether the role is wanted. A switch that cannot be used, because too little is known, keeps its role
    /// as it is, whatever it shows.
    bool isOn(Switch which) const;
    bool runs(Switch which) const { return m_running[which]; }
    bool differs(Switch which) const { return isOn(which) != runs(which); }
    RoleTable::States switchedOn() const;
    /// What is chosen, to be compared.
    QString choices() const;

    /// What runs is what the service has read since, if it has: an import may have brought other roles.
    /// Otherwise it stays what it was, whatever the service was told to save.
    void takeRunning();

    /// With ProfiSAFE two of the masters cannot be had, and more roles need the free configuration.
    void setProfisafePresent(bool present);
    bool isProfisafePresent() const { return m_profisafePresent; }
    /// Sets every switch but the PROFINET slave's to what runs. The EtherCAT slave's is off and not to be
    /// used while its devices in the override file are not known.
    void showRunning(bool overrideRead);
    /// Sets the PROFINET slave's switch to what runs, once it is known that the controller can have it.
    void showProfinetSlave();

    /// Marks the switches that differ from what runs; returns how many do.
    int markDifferences() const;

    /// A switch that may be used was turned: its role's command is wanted, or no longer.
    void toggleChanged(Switch which);
    bool isCommandWanted(Switch which) const;
    const char* freeConfigurationObjection(Switch which) const;

private:
    void setToRunning(Switch which) const;

    std::array<QComboBox*, BusSwitches::Count> m_combos{};
    std::array<QLabel*, BusSwitches::Count> m_labels{};
    std::array<bool, BusSwitches::Count> m_running{};
    std::array<bool, BusSwitches::Count> m_changed{}; ///< toggled with the switch
    bool m_profisafePresent = false;
    int m_reading = 0; ///< number of the service's reading that says what runs
};

#endif
