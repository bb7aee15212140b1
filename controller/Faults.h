#ifndef CONTROLLER_FAULTS_H
#define CONTROLLER_FAULTS_H

#include <QMap>
#include <QString>

#include <optional>

/// What can go wrong at the controller. Tests, the panel and the command line set it.
class Faults
{
public:
    /// What each does says `meaningOf`.
    enum Fault {
        FetchFails,
        SendFails,
        FetchCutShort,
        FetchEmpty,
        FetchGarbage,
        CommandNeverTaken,
        BusTypeRefused,
        BusTypeNeverAnswered,
        MappingNeverAnswered,
        MappingAnsweredLate,
        MappingRejected,
        SlaveNeverAnswered,
        SlaveAnsweredLate,
        RestartIgnored,
        VariableNotOffered,
        HeartbeatNotReloaded,
        PortTaken,
        FinsSilent,
        FinsSlow,
        FinsDrops,
        FinsGarbage,
        FinsErrorCode,
        FinsEndCode,
        ModbusSilent,
        ModbusSlow,
        ModbusDrops,
        ModbusGarbage,
        ModbusException,
        ModbusWrongUnit,
        MesSilent,
        MesSlow,
        MesDrops,
        MesGarbage,
        PollSilent,
        PollSlow,
        PollDrops,
        PollGarbage,
        PollWrongUnit,
        FaultCount
    };

    /// Sets `fault` for the next `times` occurrences (-1: until cleared), after `spared` that go well. With a
    /// `target` only what it names (a controller path, a variable) is hit and counted.
    void set(Fault fault, int times = -1, const QString& target = QString(), int spared = 0);
    void clear(Fault fault);
    void clearAll();
    bool isSet(Fault fault) const;
    /// Occurrences that are left, -1 without end, 0 when the fault is not set.
    int timesLeft(Fault fault) const;
    QString targetOf(Fault fault) const;

    /// Whether the fault strikes now; counts the occurrence down.
    bool strikes(Fault fault, const QString& target = QString());

    /// The number that the target of the fault says, or the fault's usual one.
    int numberOf(Fault fault) const;
    /// That number when the fault strikes now.
    std::optional<int> strikesWith(Fault fault);

    /// Name as `--fault` takes it, "fetch-fails" for FetchFails.
    static QString nameOf(Fault fault);
    /// What it does, as a line of a list.
    static QString meaningOf(Fault fault);
    /// What the target of the fault is ("path", "milliseconds"), with the usual number; empty when it has
    /// none.
    static QString targetMeaningOf(Fault fault);
    /// All of them, a line a fault, as `--help` tells them.
    static QString table();
    /// Sets what "name", "name:times" or "name:times:target" says; false when there is no such name, `times`
    /// is no number, or the target none that the fault could make use of.
    bool setFromText(const QString& text);

private:
    struct State
    {
        int times = 0;
        QString target;
        int spared = 0;
    };
    QMap<int, State> m_states;
};

#endif
