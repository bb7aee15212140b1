#ifndef HOST_VARIABLETABLE_H
#define HOST_VARIABLETABLE_H

#include "ControllerLink.h"

#include <QHash>
#include <QString>

#include <deque>
#include <memory>
#include <vector>

struct ZelVariableSlot
{
    struct Variable* variable = nullptr;
    int element = 0;
    double value = 0.0;
    int users = 0;        ///< handles that are subscribed
    bool changed = false; ///< waits for the next event-loop turn to be read from the controller
};

/// Every controller variable that a handle names, and the connection to the controller that holds them.
///
/// Slots never move and are never given back. There is no link until the program makes the connection;
/// until then a slot holds what was written to it.
class VariableTable
{
public:
    /// One call of `setUsed` on one element, as it was asked for, granted or not.
    struct SubscriptionCall
    {
        QString name;
        int element;
        bool on;
    };

    static VariableTable& instance();

    ControllerLink* link() const { return m_link; }
    /// Binds and loads every known variable at `link` and subscribes those in use; null disconnects. The
    /// values stay.
    void connectTo(ControllerLink* link);

    /// The slot of one element; two calls for the same element give the same slot.
    ZelVariableSlot* slot(const char* name, ControllerLink::VariableType type, int element, int count);
    void write(ZelVariableSlot& slot, double value);
    /// Subscribes or releases the slot for one handle, whose state is `isUsed`; false when the controller
    /// refuses the subscription.
    bool setUsed(ZelVariableSlot& slot, bool& isUsed, bool used);

    /// Number of element handles that are subscribed at present.
    int subscribedHandles() const { return m_subscribedHandles; }
    /// The last calls of `setUsed`, oldest first, at most `MaxSubscriptionCalls`.
    std::vector<SubscriptionCall> subscriptionCalls() const;
    void clearSubscriptionCalls() { m_calls.clear(); }

    static constexpr std::size_t MaxSubscriptionCalls = 1024;

private:
    struct Call
    {
        const ZelVariableSlot* slot;
        bool on;
    };

    VariableTable();
    ~VariableTable();

    void disconnect(bool linkIsAlive);
    void bind(Variable& variable);
    double load(const ZelVariableSlot& slot) const;
    void readLater(ZelVariableSlot& slot);
    void readChanged();
    void record(const ZelVariableSlot& slot, bool on);

    std::deque<Variable> m_variables;
    std::deque<ZelVariableSlot> m_slots;
    QHash<QString, Variable*> m_byName;
    ControllerLink* m_link = nullptr;
    std::unique_ptr<QObject> m_follower; ///< receives the link's signals; lives as long as the connection
    std::vector<ZelVariableSlot*> m_changed;
    std::deque<Call> m_calls;
    int m_subscribedHandles = 0;
};

#endif
