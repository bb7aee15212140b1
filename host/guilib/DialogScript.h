#ifndef HOST_DIALOGSCRIPT_H
#define HOST_DIALOGSCRIPT_H

#include <QList>
#include <QPointer>
#include <QQueue>
#include <QStringList>
#include <QTimer>

#include <functional>
#include <optional>

/// Answers dialogs in place of a finger, for tests and the tour: keeps what was shown, the answers to come,
/// and who wants to look at a dialog before it is answered. `Script` is the class of scripts itself and
/// keeps the one state.
template <class Script, class Dialog, class Answer, class Record>
class DialogScript
{
public:
    /// Answers the next dialog that nobody has answered yet; answers queue up.
    static void answerNext(const Answer& answer) { Script::state().answers.enqueue(answer); }
    /// The answer when the queue is empty; none: such a dialog waits for a finger.
    static void answerByDefault(const std::optional<Answer>& answer) { Script::state().byDefault = answer; }
    /// Called with every dialog one event-loop turn after it was shown, before it is answered.
    static void onShown(std::function<void(Dialog*)> look) { Script::state().look = std::move(look); }
    /// Everything that was shown, the oldest first.
    static QList<Record> shown() { return Script::state().shown; }
    /// Closes a dialog as dismissed when it has waited 3 s for an answer, so that a test cannot hang.
    static void failUnanswered(bool on) { Script::state().failUnanswered = on; }
    /// What the dialogs said that had to be closed so.
    static QStringList unanswered() { return Script::state().unanswered; }
    /// Back to the start: nothing shown, nothing to answer, fingers wanted.
    static void clear() { Script::state() = State(); }

protected:
    struct State
    {
        QQueue<Answer> answers;
        std::optional<Answer> byDefault;
        std::function<void(Dialog*)> look;
        QList<Record> shown;
        QStringList refusals;
        QStringList unanswered;
        bool failUnanswered = false;
    };

    static constexpr int PatienceMs = 3000;

    /// To be called when `dialog` is shown. `name` is what it says; `waits` is false for one that is closed
    /// by the code that shows it; `give` answers it.
    static void dialogShown(Dialog* dialog, const Record& record, const QString& name, bool waits,
                            std::function<void(Dialog*, const Answer&)> give)
    {
        State& state = Script::state();
        state.shown.append(record);
        std::optional<Answer> answer;
        if (waits)
            answer = state.answers.isEmpty() ? state.byDefault : state.answers.dequeue();
        QTimer::singleShot(0, dialog, [dialog = QPointer<Dialog>(dialog), answer, give = std::move(give)] {
            const std::function<void(Dialog*)> look = Script::state().look;
            if (look && dialog->isVisible())
                look(dialog);
            if (answer && dialog && dialog->isVisible())
                give(dialog, *answer);
        });
        if (waits && !answer && state.failUnanswered)
            QTimer::singleShot(PatienceMs, dialog, [dialog, name] {
                if (!dialog->isVisible())
                    return;
                Script::state().unanswered.append(name);
                dialog->reject();
            });
    }
};

#endif
