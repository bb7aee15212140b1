#include "Poll.h"

#include <QPointer>
#include <QWidget>

#include <utility>

Poll::Poll(const Rule& rule, QObject* page)
    : m_rule(rule)
    , m_timer(page)
{
    QObject::connect(&m_timer, &QTimer::timeout, &m_timer, [this] { ask(); });
}

Poll::Answer Poll::count(bool yes)
{
    if (!yes && m_noes < m_rule.patience) {
        ++m_noes;
        return Answer::NotYet;
    }
    reset();
    return yes ? Answer::Yes : Answer::Never;
}

void Poll::start(Question question, std::function<void(Answer)> ended)
{
    m_question = std::move(question);
    m_ended = std::move(ended);
    reset();
    m_timer.start(m_rule.everyMs);
}

void Poll::start(const Rule& rule, Question question, std::function<void(Answer)> ended)
{
    m_rule = rule;
    start(std::move(question), std::move(ended));
}

// The poll may be gone after the call, so what is called is not the poll's own.
void Poll::ask()
{
    if (!isRunning())
        return;
    const Answer answer = count(m_question());
    if (answer == Answer::NotYet)
        return;
    m_timer.stop();
    const std::function<void(Answer)> ended = m_ended;
    ended(answer);
}

Poll::Answer Poll::wait(const Rule& rule, const QWidget* page, const Delay& delay, const Question& question)
{
    const QPointer<const QWidget> self(page);
    Poll poll(rule);
    Answer answer = poll.count(question());
    while (answer == Answer::NotYet) {
        delay(static_cast<unsigned>(rule.everyMs));
        if (page && !self)
            return Answer::Gone;
        answer = poll.count(question());
    }
    return answer;
}
