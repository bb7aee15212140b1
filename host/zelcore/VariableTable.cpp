#include "VariableTable.h"

#include "HostLog.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <utility>

struct Variable
{
    QString name;
    ControllerLink::VariableType type = ControllerLink::VariableType::Bool;
    int count = 1;
    bool bound = false;
    std::vector<ZelVariableSlot*> elements; ///< null where no handle names the element
};

namespace {

// A slot is read with a plain conversion, so it only ever holds what its type can hold.
double asType(ControllerLink::VariableType type, double value)
{
    switch (type) {
    case ControllerLink::VariableType::Bool:
        return value != 0.0 ? 1.0 : 0.0;
    case ControllerLink::VariableType::Int:
        if (std::isnan(value))
            return 0.0;
        return std::clamp(std::trunc(value), static_cast<double>(std::numeric_limits<int>::min()),
                          static_cast<double>(std::numeric_limits<int>::max()));
    case ControllerLink::VariableType::Real:
        break;
    }
    return value;
}

} // namespace

VariableTable::VariableTable() = default;
VariableTable::~VariableTable() = default;

VariableTable& VariableTable::instance()
{
    // Never destroyed: handles of a plug-in may be torn down after everything else at the end of the process.
    static auto* const table = new VariableTable;
    return *table;
}

void VariableTable::connectTo(ControllerLink* link)
{
    if (link == m_link)
        return;
    disconnect(true);
    if (!link)
        return;

    m_link = link;
    m_follower = std::make_unique<QObject>();
    QObject::connect(link, &QObject::destroyed, m_follower.get(), [this] { disconnect(false); });
    QObject::connect(link, &ControllerLink::variableChanged, m_follower.get(),
                     [this](const QString& name, int element) {
                         Variable* const variable = m_byName.value(name);
                         if (!variable || element < 0 || element >= variable->count)
                             return;
                         if (ZelVariableSlot* const slot = variable->elements[element])
                             readLater(*slot);
                     });
    for (Variable& variable : m_variables)
        bind(variable);
    for (const ZelVariableSlot& slot : m_slots) {
        if (slot.users > 0 && !m_link->subscribe(slot.variable->name, slot.element, true))
            qCWarning(lcHost) << "controller does not offer" << slot.variable->name << slot.element;
    }
}

void VariableTable::disconnect(bool linkIsAlive)
{
    if (!m_link)
        return;
    ControllerLink* const link = m_link;
    m_link = nullptr;
    // Takes the queued reads along.
    m_follower.reset();
    for (ZelVariableSlot* slot : m_changed)
        slot->changed = false;
    m_changed.clear();
    for (Variable& variable : m_variables)
        variable.bound = false;
    if (!linkIsAlive)
        return;
    for (const ZelVariableSlot& slot : m_slots) {
        if (slot.users > 0)
            link->subscribe(slot.variable->name, slot.element, false);
    }
}

void VariableTable::bind(Variable& variable)
{
    variable.bound = m_link->bindVariable(variable.name, variable.type, variable.count);
    if (!variable.bound) {
        qCWarning(lcHost) << "controller has" << variable.name << "with another type or length";
        return;
    }
    for (ZelVariableSlot* slot : variable.elements) {
        if (slot)
            slot->value = load(*slot);
    }
}

ZelVariableSlot* VariableTable::slot(const char* name, ControllerLink::VariableType type, int element,
                                     int count)
{
    Q_ASSERT(element >= 0);
    count = std::max(count, element + 1);
    const QString key = QString::fromUtf8(name);
    Variable*& variable = m_byName[key];
    bool grown = false;
    if (!variable) {
        variable = &m_variables.emplace_back();
        variable->name = key;
        variable->type = type;
        grown = true;
    } else if (variable->type != type) {
        qCWarning(lcHost) << key << "is named with two types; the first one counts";
    }
    if (grown || count > variable->count) {
        variable->count = count;
        variable->elements.resize(count, nullptr);
        grown = true;
    }

    ZelVariableSlot*& slot = variable->elements[element];
    const bool isNew = !slot;
    if (isNew) {
        slot = &m_slots.emplace_back();
        slot->variable = variable;
        slot->element = element;
    }
    if (m_link && grown)
        bind(*variable);
    else if (m_link && isNew && variable->bound)
        slot->value = load(*slot);
    return slot;
}

double VariableTable::load(const ZelVariableSlot& slot) const
{
    return asType(slot.variable->type, m_link->readVariable(slot.variable->name, slot.element));
}

void VariableTable::write(ZelVariableSlot& slot, double value)
{
    slot.value = asType(slot.variable->type, value);
    if (m_link && slot.variable->bound)
        m_link->writeVariable(slot.variable->name, slot.element, slot.value);
}

bool VariableTable::setUsed(ZelVariableSlot& slot, bool& isUsed, bool used)
{
    record(slot, used);
    // The link is asked for every handle, also when another one is subscribed: the answer is its own.
    const bool granted = used && (!m_link || m_link->subscribe(slot.variable->name, slot.element, true));
    if (granted != isUsed) {
        isUsed = granted;
        slot.users += granted ? 1 : -1;
        m_subscribedHandles += granted ? 1 : -1;
        if (m_link && !used && slot.users == 0)
            m_link->subscribe(slot.variable->name, slot.element, false);
    }
    // It may have changed while nobody was subscribed.
    if (granted)
        readLater(slot);
    return granted || !used;
}

void VariableTable::readLater(ZelVariableSlot& slot)
{
    if (!m_link || !slot.variable->bound || slot.changed)
        return;
    slot.changed = true;
    m_changed.push_back(&slot);
    if (m_changed.size() == 1)
        QMetaObject::invokeMethod(
            m_follower.get(), [this] { readChanged(); }, Qt::QueuedConnection);
}

void VariableTable::readChanged()
{
    const std::vector<ZelVariableSlot*> changed = std::exchange(m_changed, {});
    for (ZelVariableSlot* slot : changed) {
        slot->changed = false;
        // Not the value that was announced: the pendant may have written a newer one since.
        slot->value = load(*slot);
    }
}

void VariableTable::record(const ZelVariableSlot& slot, bool on)
{
    if (m_calls.size() == MaxSubscriptionCalls)
        m_calls.pop_front();
    m_calls.push_back({&slot, on});
}

std::vector<VariableTable::SubscriptionCall> VariableTable::subscriptionCalls() const
{
    std::vector<SubscriptionCall> calls;
    calls.reserve(m_calls.size());
    for (const Call& call : m_calls)
        calls.push_back({call.slot->variable->name, call.slot->element, call.on});
    return calls;
}
