#ifndef POLL_H
#define POLL_H

#include <QTimer>

#include <functional>

class QWidget;

/// Asks the controller again and again, until it says yes or the patience is used up.
///
/// How it counts: as many noes as the patience are borne, and the next one ends the poll. The answer comes
/// first: a yes counts also when the patience is used up. A poll that waits asks at once, so it waits as
/// often as its patience says; one on a timer asks for the first time when an interval has passed, so it
/// gives up after one interval more.
///
/// A poll on a timer is a member of its page and ends with it. What waits processes events, and says when the
/// page did not survive that.
class Poll
{
public:
    struct Rule
    {
        int everyMs;
        int patience; ///< noes that are borne
    };
    enum class Answer {
        Yes,
        NotYet, ///< to be asked again
        Never,  ///< the patience is used up
        Gone    ///< the page is dead: the caller returns without touching it
    };
    using Question = std::function<bool()>;
    using Delay = std::function<void(unsigned msec)>; ///< processes events

    /// `page` becomes the parent of the timer; not needed without one.
    explicit Poll(const Rule& rule, QObject* page = nullptr);
    Poll(const Poll&) = delete;
    Poll& operator=(const Poll&) = delete;

    const Rule& rule() const { return m_rule; }

    /// Counts one answer, for whoever asks at times of its own. Yes and Never begin the count anew.
    Answer count(bool yes);
    /// Begins the count anew.
    void reset() { m_noes = 0; }

    /// Asks on a timer and calls `ended` once, with the last answer: Yes or Never. The timer is stopped by
    /// then, and the page, the poll with it, may be destroyed in the call. A poll that runs begins anew, with
    /// `rule` if given.
    void start(Question question, std::function<void(Answer)> ended);
    void start(const Rule& rule, Question question, std::function<void(Answer)> ended);
    /// What the timer does at each interval; nothing while it is stopped.
    void ask();
    void stop() { m_timer.stop(); }
    bool isRunning() const { return m_timer.isActive(); }

    /// Asks and waits in turn, by `delay`. Not asked again when `page` died in a wait; without a page (null)
    /// it goes on whatever dies. Never Answer::NotYet.
    static Answer wait(const Rule& rule, const QWidget* page, const Delay& delay, const Question& question);

private:
    Rule m_rule;
    int m_noes = 0;
    QTimer m_timer;
    Question m_question;
    std::function<void(Answer)> m_ended;
};

#endif
