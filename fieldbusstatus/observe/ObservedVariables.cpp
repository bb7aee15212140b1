#include "ObservedVariables.h"

namespace {

constexpr int ReadWrite = 1; // the host knows no other mode for these variables

enum class Kind { Bool, Int };

struct Variable
{
    const char* name;
    Kind kind = Kind::Bool;
    int count = 1; // more: a vector
};

constexpr int SlavePositions = 9;
constexpr int DeviceNetDevices = 16;

constexpr Variable Variables[] = {
    // links
    {"ifidbus.mtcp_link_state"},
    {"ifidbus.ethcat_link_state"},
    {"ifidbus.pfn_link_state"},
    {"ifidbus.eip_link_state"},
    {"ifidbus.ecm_link_state"},
    {"ifidbus.dns_link_state"},
    {"ifidbus.mbc_link_state"},
    {"ifidbus.eim_link_state"},
    {"ifidbus.pnm_link_state"},
    {"ifidbus.dnm_link_state"},
    {"ifidbus.commun_state", Kind::Int},
    // slaves and devices of the masters
    {"ifidbus.eim_status", Kind::Bool, SlavePositions},
    {"ifidbus.eim_enable_status", Kind::Int, SlavePositions},
    {"ifidbus.eim_disable_status", Kind::Int, SlavePositions},
    {"ifidbus.pnm_status", Kind::Bool, SlavePositions},
    {"ifidbus.pnm_enable_status", Kind::Int, SlavePositions},
    {"ifidbus.pnm_disable_status", Kind::Int, SlavePositions},
    {"ifidbus.dnm_status", Kind::Bool, DeviceNetDevices},
    {"ifidbus.dnm_errorcode", Kind::Int, DeviceNetDevices},
    {"ifidbus.dnm_slave_num", Kind::Int},
    // what the controller is
    {"ifidbus.anybus_fm", Kind::Int},
    {"ifidbus.is_rp2pro"},
    {"ifidbus.performance_switch", Kind::Int},
    // roles that are wanted
    {"ifidbus.ethcat_enable"},
    {"ifidbus.eip_enable"},
    {"ifidbus.pfn_enable"},
    {"ifidbus.mtcp_enable"},
    {"ifidbus.dns_enable"},
    {"ifidbus.dnm_enable"},
    {"ifidbus.mbc_enable"},
    {"ifidbus.freebus_enable"},
    // announced files and commands, each taken back by the controller
    {"ifidbus.bus_type_state", Kind::Int},
    {"ifidbus.xml_update_state", Kind::Int},
    {"ifidbus.xml_heartbeat"},
    {"ifidbus.mbc_save_enable"},
    {"ifidbus.dnm_save_config"},
    {"ifidbus.ecat2open"},
    {"ifidbus.ecat2close"},
    {"ifidbus.eip2open"},
    {"ifidbus.eip2close"},
    {"ifidbus.pfn2open"},
    {"ifidbus.pfn2close"},
    {"ifidbus.dns2open"},
    {"ifidbus.dns2close"},
    {"ifidbus.dnm2open"},
    {"ifidbus.dnm2close"},
    // host links and the Modbus TCP master
    {"ifidbus.mbc_connected"},
    {"ifidbus.mbc_auto_con"},
    {"ifins_tcp.enable"},
    {"ifins_tcp.error"},
    {"ifins_tcp.bupdate_cfg"},
    {"ifins_tcp.connected"},
    {"imes.update_tcp_server_cfg"},
    {"imes.tcp_server_listen"},
    {"imes.tcp_server_connected"},
    {"imes.tcp_server_active"},
};

} // namespace

class ObservedVariables::Source
{
public:
    virtual ~Source() = default;
    virtual bool use() = 0;
    virtual int read(int element) const = 0;
};

namespace {

template <typename Handle, typename Value>
class Scalar : public ObservedVariables::Source
{
public:
    explicit Scalar(const Variable& variable)
        : m_handle(variable.name, ReadWrite)
    {
    }
    bool use() override { return m_handle.setUsed(true); }
    int read(int /*element*/) const override
    {
        const Value value = m_handle;
        return value;
    }

private:
    Handle m_handle;
};

template <typename Handle>
class Vector : public ObservedVariables::Source
{
public:
    explicit Vector(const Variable& variable)
        : m_handle(variable.name, variable.count, ReadWrite)
    {
    }
    bool use() override { return m_handle.setUsed(true); }
    int read(int element) const override { return m_handle[element].getValue(); }

private:
    Handle m_handle;
};

} // namespace

ObservedVariables::ObservedVariables()
    : m_clock("ifidbus.current_time", ReadWrite)
{
    for (const Variable& variable : Variables) {
        const bool isBool = variable.kind == Kind::Bool;
        if (variable.count > 1 && isBool)
            m_sources.push_back(std::make_unique<Vector<zelCustomRvarBoolVect>>(variable));
        else if (variable.count > 1)
            m_sources.push_back(std::make_unique<Vector<zelCustomRvarIntVect>>(variable));
        else if (isBool)
            m_sources.push_back(std::make_unique<Scalar<zelCustomRvarBool, bool>>(variable));
        else
            m_sources.push_back(std::make_unique<Scalar<zelCustomRvarInt, int>>(variable));
    }
}

ObservedVariables::~ObservedVariables() = default;

void ObservedVariables::subscribe()
{
    m_hasClock = m_clock.setUsed(true);
    m_elements.clear();
    for (std::size_t i = 0; i < m_sources.size(); ++i) {
        if (!m_sources[i]->use())
            continue;
        const Variable& variable = Variables[i];
        const QString name = QLatin1String(variable.name);
        for (int element = 0; element < variable.count; ++element)
            m_elements.push_back(
                {m_sources[i].get(), element,
                 variable.count == 1 ? name : QStringLiteral("%1[%2]").arg(name).arg(element), 0, false});
    }
    m_changes.reserve(m_elements.size());
}

const std::vector<ObservedVariables::Change>& ObservedVariables::poll()
{
    m_changes.clear();
    for (Element& element : m_elements) {
        const int now = element.source->read(element.index);
        if (element.isKnown && now == element.value)
            continue;
        m_changes.push_back({&element.name, element.value, now, !element.isKnown});
        element.value = now;
        element.isKnown = true;
        m_values[element.name] = now;
    }
    return m_changes;
}

double ObservedVariables::clock() const
{
    return m_clock;
}
