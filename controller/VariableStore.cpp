#include "VariableStore.h"

#include <cmath>
#include <limits>

namespace {

using Type = VariableStore::Type;

struct Definition
{
    const char* name;
    Type type;
    int count;
    double initial;
};

constexpr int SlavePositions = 9;
constexpr int DeviceNetDevices = 16;
constexpr int ProfisafeLocal = 8;
constexpr int ProfisafeExternal = 16;

// Code of a PROFINET module in the fieldbus slot; 13 would be an EtherCAT slave module.
constexpr double ProfinetModule = 14;

constexpr Definition Definitions[] = {
    {"ifidbus.bus_type_state", Type::Int, 1, 0},
    {"ifidbus.anybus_fm", Type::Int, 1, ProfinetModule},
    {"ifidbus.is_rp2pro", Type::Bool, 1, 1},
    {"ifidbus.commun_state", Type::Int, 1, 0},
    {"ifidbus.performance_switch", Type::Int, 1, 0},
    {"ifidbus.current_time", Type::Real, 1, 0},
    {"ifidbus.xml_update_state", Type::Int, 1, 0},
    {"ifidbus.freebus_enable", Type::Bool, 1, 0},

    {"ifidbus.ethcat_enable", Type::Bool, 1, 0},
    {"ifidbus.eip_enable", Type::Bool, 1, 0},
    {"ifidbus.pfn_enable", Type::Bool, 1, 0},
    {"ifidbus.mtcp_enable", Type::Bool, 1, 0},
    {"ifidbus.dns_enable", Type::Bool, 1, 0},
    {"ifidbus.dnm_enable", Type::Bool, 1, 0},

    {"ifidbus.ecat2open", Type::Bool, 1, 0},
    {"ifidbus.ecat2close", Type::Bool, 1, 0},
    {"ifidbus.eip2open", Type::Bool, 1, 0},
    {"ifidbus.eip2close", Type::Bool, 1, 0},
    {"ifidbus.pfn2open", Type::Bool, 1, 0},
    {"ifidbus.pfn2close", Type::Bool, 1, 0},
    {"ifidbus.dns2open", Type::Bool, 1, 0},
    {"ifidbus.dns2close", Type::Bool, 1, 0},
    {"ifidbus.dnm2open", Type::Bool, 1, 0},
    {"ifidbus.dnm2close", Type::Bool, 1, 0},

    {"ifidbus.mtcp_link_state", Type::Bool, 1, 0},
    {"ifidbus.ethcat_link_state", Type::Bool, 1, 0},
    {"ifidbus.pfn_link_state", Type::Bool, 1, 0},
    {"ifidbus.eip_link_state", Type::Bool, 1, 0},
    {"ifidbus.ecm_link_state", Type::Bool, 1, 0},
    {"ifidbus.dns_link_state", Type::Bool, 1, 0},
    {"ifidbus.mbc_link_state", Type::Bool, 1, 0},
    {"ifidbus.eim_link_state", Type::Bool, 1, 0},
    {"ifidbus.pnm_link_state", Type::Bool, 1, 0},
    {"ifidbus.dnm_link_state", Type::Bool, 1, 0},
    {"ifidbus.xml_heartbeat", Type::Bool, 1, 0},

    {"ifidbus.mbc_enable", Type::Bool, 1, 0},
    {"ifidbus.mbc_connected", Type::Bool, 1, 0},
    {"ifidbus.mbc_save_enable", Type::Bool, 1, 0},
    {"ifidbus.mbc_open", Type::Bool, 1, 0},
    {"ifidbus.mbc_auto_con", Type::Bool, 1, 0},

    {"ifidbus.eim_configured", Type::Int, 1, 0},
    {"ifidbus.eim_status", Type::Bool, SlavePositions, 0},
    {"ifidbus.dynamic_eim_enable", Type::Bool, 1, 0},
    {"ifidbus.eim_disable_status", Type::Int, SlavePositions, 0},
    {"ifidbus.eim_enable_status", Type::Int, SlavePositions, 0},
    {"ifidbus.pnm_configured", Type::Int, 1, 0},
    {"ifidbus.pnm_status", Type::Bool, SlavePositions, 0},
    {"ifidbus.dynamic_pnm_enable", Type::Bool, 1, 0},
    {"ifidbus.pnm_disable_status", Type::Int, SlavePositions, 0},
    {"ifidbus.pnm_enable_status", Type::Int, SlavePositions, 0},

    {"ifidbus.dnm_status", Type::Bool, DeviceNetDevices, 0},
    {"ifidbus.dnm_errorcode", Type::Int, DeviceNetDevices, 0},
    {"ifidbus.dnm_save_config", Type::Bool, 1, 0},
    {"ifidbus.dnm_slave_num", Type::Int, 1, 0},

    {"ifins_tcp.enable", Type::Bool, 1, 0},
    {"ifins_tcp.error", Type::Bool, 1, 0},
    {"ifins_tcp.bupdate_cfg", Type::Bool, 1, 0},
    {"ifins_tcp.connected", Type::Bool, 1, 0},
    {"imes.update_tcp_server_cfg", Type::Bool, 1, 0},
    {"imes.tcp_server_listen", Type::Bool, 1, 0},
    {"imes.tcp_server_connected", Type::Bool, 1, 0},
    {"imes.tcp_server_active", Type::Bool, 1, 0},

    {"io_man.profisafe_status", Type::Int, 1, 0}, // 1 while ProfiSAFE is present
    {"io_man.profisafe_local_wo", Type::Int, ProfisafeLocal, 0},
    {"io_man.profisafe_local_ro", Type::Int, ProfisafeLocal, 0},
    {"io_man.profisafe_ext_ro", Type::Int, ProfisafeExternal, 0},
};

// What a variable of the type can hold.
double fitted(Type type, double value)
{
    if (type == Type::Real)
        return value;
    if (std::isnan(value))
        return 0.0;
    if (type == Type::Bool)
        return value != 0.0 ? 1.0 : 0.0;
    return qBound<double>(std::numeric_limits<qint32>::min(), std::trunc(value),
                          std::numeric_limits<qint32>::max());
}

bool isSame(double left, double right)
{
    return left == right || (std::isnan(left) && std::isnan(right));
}

} // namespace

VariableStore::VariableStore()
{
    for (const Definition& definition : Definitions)
        define(QLatin1String(definition.name), definition.type, definition.count, definition.initial);
}

bool VariableStore::define(const QString& name, Type type, int count, double initial)
{
    if (name.isEmpty() || count < 1 || m_variables.contains(name))
        return false;
    m_variables.insert(
        name, {type, std::vector<double>(static_cast<std::size_t>(count), fitted(type, initial)), {}});
    m_names.append(name);
    return true;
}

bool VariableStore::isKnown(const QString& name, Type type, int count) const
{
    return contains(name) && typeOf(name) == type && countOf(name) == count;
}

bool VariableStore::contains(const QString& name, int element) const
{
    return element >= 0 && element < countOf(name);
}

VariableStore::Type VariableStore::typeOf(const QString& name) const
{
    const auto variable = m_variables.constFind(name);
    return variable == m_variables.constEnd() ? Type::Int : variable->type;
}

int VariableStore::countOf(const QString& name) const
{
    const auto variable = m_variables.constFind(name);
    return variable == m_variables.constEnd() ? 0 : static_cast<int>(variable->values.size());
}

double VariableStore::value(const QString& name, int element) const
{
    return contains(name, element) ? m_variables.constFind(name)->values[static_cast<std::size_t>(element)]
                                   : 0.0;
}

void VariableStore::set(const QString& name, int element, double value)
{
    if (!contains(name, element))
        return;
    Variable& variable = m_variables[name];
    double& current = variable.values[static_cast<std::size_t>(element)];
    const double wanted = fitted(variable.type, value);
    if (isSame(current, wanted))
        return;
    current = wanted;
    emit changed(name, element, wanted);
}

void VariableStore::changedByPendant(const QString& name, int element, double value)
{
    if (!contains(name, element))
        return;
    set(name, element, value);
    const double taken = this->value(name, element);
    // A copy: a handler may add variables and handlers.
    const std::vector<Handler> handlers = m_variables[name].handlers;
    for (const Handler& handler : handlers)
        handler(element, taken);
}

void VariableStore::watch(const QString& name, Handler handler)
{
    Q_ASSERT(contains(name));
    m_variables[name].handlers.push_back(std::move(handler));
}
