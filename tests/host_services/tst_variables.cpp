#include "CurrentLink.h"
#include "MemoryLink.h"
#include "Rows.h"
#include "VariableTable.h"
#include "zelCustomRvar.h"

#include <QTest>

#include <cmath>
#include <functional>
#include <limits>

using Type = ControllerLink::VariableType;

namespace {

void nextTurn()
{
    QCoreApplication::sendPostedEvents();
    QCoreApplication::processEvents();
}

// As in a plug-in: constructed when the library is loaded, before there is an application.
zelCustomRvarInt earlyHandle("early.value", 1);

using Steps = std::function<void(MemoryLink&, zelCustomRvarInt&)>;

} // namespace

Q_DECLARE_METATYPE(Steps)

using TheControllersValueWinsRows = Rows<Steps, int, int>;
using ASlotHoldsWhatItsTypeCanHoldRows = Rows<double, int, bool>;

class TestVariables : public QObject
{
    Q_OBJECT

private slots:
    void init() { setCurrentLink(&m_link); }
    void cleanup() { setCurrentLink(nullptr); }

    void aHandleMadeBeforeTheApplicationFollowsTheController()
    {
        QVERIFY(earlyHandle.setUsed(true));
        m_link.change("early.value", 0, 41);
        QCOMPARE(int(earlyHandle), 0);
        nextTurn();
        QCOMPARE(int(earlyHandle), 41);
        earlyHandle = 42;
        QCOMPARE(m_link.readVariable("early.value", 0), 42.0);
        QVERIFY(earlyHandle.setUsed(false));
    }

    void handlesOfOneNameShareASlotAndASubscription()
    {
        zelCustomRvarBool first("shared.enable", 1);
        zelCustomRvarBool second("shared.enable", 1);
        const int before = VariableTable::instance().subscribedHandles();
        second = true;
        QVERIFY(first);

        first.setUsed(true);
        first.setUsed(true);
        second.setUsed(true);
        QCOMPARE(VariableTable::instance().subscribedHandles(), before + 2);
        nextTurn();
        first.setUsed(false);
        first.setUsed(false);
        QCOMPARE(VariableTable::instance().subscribedHandles(), before + 1);
        m_link.change("shared.enable", 0, 0);
        nextTurn();
        QVERIFY(!first);
        second.setUsed(false);
        QVERIFY(!m_link.subscribed.contains("shared.enable[0]"));
    }

    // What happens between the pendant's write and the next event-loop turn, in whatever order: in the end
    // the slot holds what the controller holds.
    void theControllersValueWins_data()
    {
        const TheControllersValueWinsRows row;

        const QString name = QStringLiteral("race.value");
        row("a change waits for the turn",
            Steps([name](MemoryLink& link, zelCustomRvarInt&) { link.change(name, 0, 5); }), 0, 5);
        row("the last of a burst counts", Steps([name](MemoryLink& link, zelCustomRvarInt&) {
                for (int value = 1; value <= 9; ++value)
                    link.change(name, 0, value);
            }),
            0, 9);
        row("an older change does not undo a newer write",
            Steps([name](MemoryLink& link, zelCustomRvarInt& handle) {
                link.change(name, 0, 5);
                handle = 7;
            }),
            7, 7);
        row("a command that is taken ends cleared", Steps([name](MemoryLink& link, zelCustomRvarInt& handle) {
                handle = 1;
                link.change(name, 0, 0);
            }),
            1, 0);
        row("given again and taken again", Steps([name](MemoryLink& link, zelCustomRvarInt& handle) {
                handle = 1;
                link.change(name, 0, 0);
                handle = 2;
                link.change(name, 0, 3);
            }),
            2, 3);
        row("released and subscribed again, changed in between",
            Steps([name](MemoryLink& link, zelCustomRvarInt& handle) {
                handle.setUsed(false);
                link.change(name, 0, 8);
                handle.setUsed(true);
            }),
            0, 8);
        row("a change of something else", Steps([name](MemoryLink& link, zelCustomRvarInt&) {
                emit link.variableChanged(name, 77, 1);
                emit link.variableChanged(name, -1, 1);
                emit link.variableChanged(QStringLiteral("nobody.knows"), 0, 1);
            }),
            0, 0);
    }

    void theControllersValueWins()
    {
        const auto [steps, beforeTheTurn, afterTheTurn] = TheControllersValueWinsRows::current();
        zelCustomRvarInt handle("race.value", 1);
        handle = 0;
        handle.setUsed(true);
        nextTurn();

        steps(m_link, handle);
        QCOMPARE(handle.getValue(), beforeTheTurn);
        nextTurn();
        QCOMPARE(handle.getValue(), afterTheTurn);
    }

    void aSlotHoldsWhatItsTypeCanHold_data()
    {
        const ASlotHoldsWhatItsTypeCanHoldRows row;
        row("beyond the largest", 1e300, std::numeric_limits<int>::max(), true);
        row("beyond the smallest", -std::numeric_limits<double>::infinity(), std::numeric_limits<int>::min(),
            true);
        row("no number", std::nan(""), 0, true);
        row("a fraction", -2.75, -2, true);
        row("nothing", 0.0, 0, false);
    }

    void aSlotHoldsWhatItsTypeCanHold()
    {
        const auto [sent, asInt, asBool] = ASlotHoldsWhatItsTypeCanHoldRows::current();
        m_link.define("clamp.int", Type::Int, {0});
        m_link.define("clamp.bool", Type::Bool, {0});
        zelCustomRvarInt number("clamp.int", 1);
        zelCustomRvarBool flag("clamp.bool", 1);
        number.setUsed(true);
        flag.setUsed(true);
        m_link.change("clamp.int", 0, sent);
        m_link.change("clamp.bool", 0, sent);
        nextTurn();
        QCOMPARE(number.getValue(), asInt);
        QCOMPARE(flag.getValue(), asBool);
    }

    void aVectorSubscribesInIndexOrder()
    {
        VariableTable& table = VariableTable::instance();
        const int before = table.subscribedHandles();
        zelCustomRvarIntVect vector("order.vector", 4, 1);
        m_link.refused << "order.vector[1]";
        table.clearSubscriptionCalls();

        // One element that is not offered makes the answer, and does not keep the others from being had.
        QVERIFY(!vector.setUsed(true));
        QStringList asked;
        for (const auto& call : table.subscriptionCalls())
            asked << MemoryLink::key(call.name, call.element);
        QCOMPARE(asked,
                 (QStringList{"order.vector[0]", "order.vector[1]", "order.vector[2]", "order.vector[3]"}));
        QCOMPARE(table.subscribedHandles(), before + 3);
        vector[3].setValue(9);
        QCOMPARE(m_link.readVariable("order.vector", 3), 9.0);

        QVERIFY(vector.setUsed(false));
        QCOMPARE(table.subscribedHandles(), before);
        m_link.refused.clear();
    }

    void theCallsThatAreKeptAreBounded()
    {
        VariableTable& table = VariableTable::instance();
        zelCustomRvarBool handle("bounded.calls", 1);
        for (std::size_t call = 0; call <= VariableTable::MaxSubscriptionCalls; ++call)
            handle.setUsed(call % 2 == 0);
        QCOMPARE(table.subscriptionCalls().size(), VariableTable::MaxSubscriptionCalls);
        QVERIFY(table.subscriptionCalls().back().on);
    }

    void aHandleThatGoesEndsItsSubscription()
    {
        const int before = VariableTable::instance().subscribedHandles();
        {
            zelCustomRvarBoolVect vector("short.lived", 3, 1);
            vector.setUsed(true);
            m_link.change("short.lived", 1, 1);
        }
        QCOMPARE(VariableTable::instance().subscribedHandles(), before);
        QVERIFY(!m_link.subscribed.contains("short.lived[1]"));
        nextTurn();
    }

    void aLinkThatDiesLeavesNothingBehind()
    {
        zelCustomRvarInt handle("dying.value", 1);
        QVERIFY(handle.setUsed(true));
        {
            MemoryLink dying;
            setCurrentLink(&dying);
            dying.change("dying.value", 0, 3);
        }
        QCOMPARE(currentLink(), nullptr);
        nextTurn();
        handle = 4;
        QCOMPARE(handle.getValue(), 4);
        QVERIFY(handle.setUsed(false));
        QVERIFY(handle.setUsed(true));
    }

    void aNewLinkTakesOver()
    {
        zelCustomRvarInt handle("moving.value", 1);
        handle = 1;
        handle.setUsed(true);
        m_link.change("moving.value", 0,
                      2); // waits when the link goes, and must not be read from the next one twice

        MemoryLink other;
        other.define("moving.value", Type::Int, {6});
        setCurrentLink(&other);
        QCOMPARE(handle.getValue(), 6);
        QVERIFY(other.subscribed.contains("moving.value[0]"));
        QVERIFY(!m_link.subscribed.contains("moving.value[0]"));
        m_link.change("moving.value", 0, 3);
        other.change("moving.value", 0, 7);
        nextTurn();
        QCOMPARE(handle.getValue(), 7);

        // A handle that comes later is bound and loaded at once.
        other.define("late.value", Type::Real, {2.5});
        zelCustomRvarReal late("late.value", 1);
        QCOMPARE(late.getValue(), 2.5);
    }

    void aVariableOfAnotherLengthIsLeftAlone()
    {
        m_link.define("short.vector", Type::Int, {1, 2});
        zelCustomRvarIntVect vector("short.vector", 16, 1);
        vector[15].setValue(5);
        QCOMPARE(vector[15].getValue(), 5);
        QCOMPARE(m_link.variables["short.vector"].elements.size(), 2);
    }

private:
    MemoryLink m_link;
};

QTEST_GUILESS_MAIN(TestVariables)
#include "tst_variables.moc"
