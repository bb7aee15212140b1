#ifndef CONTROLLER_SCENARIO_H
#define CONTROLLER_SCENARIO_H

#include <QObject>
#include <QStringList>

#include <functional>
#include <vector>

class SimulatedController;

/// Things that happen at given times. A scenario is a plain text of lines "time action what ...", the time in
/// seconds since the start; a "#" begins a comment. The actions are told by the table in Scenario.cpp.
class Scenario : public QObject
{
    Q_OBJECT

public:
    /// `setUserLevel` logs in with another level, which is not the controller's to do.
    Scenario(SimulatedController& controller, std::function<void(int level)> setUserLevel);

    /// Takes the text over. Says which line makes no sense and why; empty when all do.
    QString load(const QByteArray& text);
    /// Plays it, in the controller's time. The file's order counts among lines of one time.
    void start();
    bool isOver() const { return m_played == m_steps.size(); }

signals:
    /// A line is done.
    void played(const QString& line);
    void over();

private:
    struct Step
    {
        int msec;
        QString line;
        std::function<void()> act;
    };
    using Words = QStringList;

    std::function<void()> actionOf(const QString& name, const Words& words, QString& why);
    std::function<void()> cable(const Words& words, QString& why);
    std::function<void()> fault(const Words& words, QString& why);
    std::function<void()> variable(const Words& words, QString& why);
    std::function<void()> partner(const Words& words, QString& why);
    std::function<void()> userLevel(const Words& words, QString& why);
    std::function<void()> restart(const Words& words, QString& why);
    void playDue();

    SimulatedController& m_controller;
    std::function<void(int)> m_setUserLevel;
    std::vector<Step> m_steps; ///< in the order of time
    std::size_t m_played = 0;
};

#endif
