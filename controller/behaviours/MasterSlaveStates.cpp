#include "MasterSlaveStates.h"

#include "ControllerParts.h"
#include "ControllerXml.h"
#include "DevicesInUse.h"

#include <algorithm>
#include <string>

namespace {

struct MasterNames
{
    const char* role;
    const char* file;
    const char* root;
    const char* variable; // first part of the names of its variables
    const char* device;   // in "override.cfg"
};

// In the order of MasterSlaveStates::Master.
constexpr std::array<MasterNames, MasterSlaveStates::MasterCount> Names = {{
    {"EtherNetIPMaster", "/application/fidbus/eipMaster/eip_master.xml", "EipMasterCommunication",
     "ifidbus.eim", "EIM_DEVICE"},
    {"ProfinetMaster", "/application/fidbus/pfnMaster/pfn_master.xml", "PfnMasterCommunication",
     "ifidbus.pnm", "PNM_DEVICE"},
}};

constexpr auto OverrideFile = "/fa/override.cfg";

constexpr MasterSlaveStates::Master Masters[] = {MasterSlaveStates::EtherNetIp, MasterSlaveStates::Profinet};

constexpr int Nothing = 0;
constexpr int Done = 1;
constexpr int Failed = 2;

QString variable(MasterSlaveStates::Master master, const char* rest)
{
    return QLatin1String(Names[master].variable) + QLatin1String(rest);
}

QString keyOf(MasterSlaveStates::Master master, int position)
{
    return variable(master, " ") + QString::number(position);
}

bool isFlagSet(pugi::xml_node group, const char* flags, const char* flag, int number)
{
    return group.child(flags).child((flag + std::to_string(number)).c_str()).text().as_bool();
}

} // namespace

MasterSlaveStates::MasterSlaveStates(ControllerParts& controllerParts)
    : Behaviour(controllerParts)
{
    // A cell in which every slave is there would not show what a missing one looks like.
    slave(EtherNetIp, 1).plugged = false;
    slave(EtherNetIp, 3).plugged = false;
}

const MasterSlaveStates::Slave& MasterSlaveStates::slave(Master master, int position) const
{
    return m_tables[master].slaves[static_cast<std::size_t>(position)];
}

MasterSlaveStates::Slave& MasterSlaveStates::slave(Master master, int position)
{
    return m_tables[master].slaves[static_cast<std::size_t>(position)];
}

bool MasterSlaveStates::isSlavePlugged(Master master, int position) const
{
    return slave(master, position).plugged;
}

bool MasterSlaveStates::setSlaveConnected(Master master, int position, bool connected)
{
    if (position < 0 || position >= PositionCount)
        return false;
    if (slave(master, position).plugged != connected) {
        slave(master, position).plugged = connected;
        serve(master, position);
    }
    return true;
}

void MasterSlaveStates::useDevice(Master master)
{
    const QString path = QLatin1String(OverrideFile);
    QByteArray devices;
    if (m_tables[master].hasDevice || !parts().roles.isOn(Names[master].role) ||
        !parts().files.read(path, devices))
        return;
    devices = withDeviceInUse(devices, Names[master].device);
    if (!parts().files.write(path, devices))
        return;
    m_tables[master].hasDevice = isDeviceInUse(devices, Names[master].device);
    start(master);
}

void MasterSlaveStates::restarted()
{
    for (const Master master : Masters) {
        readTable(master);
        start(master);
    }
}

void MasterSlaveStates::rolesChanged()
{
    for (const Master master : Masters) {
        const Table& table = m_tables[master];
        if (table.runs != (table.hasDevice && parts().roles.isOn(Names[master].role)))
            start(master);
    }
}

void MasterSlaveStates::wentDown()
{
    for (const Master master : Masters) {
        for (int position = 0; position < PositionCount; ++position) {
            slave(master, position).reset();
            publish(master, position);
        }
    }
}

// With a file that makes no sense no position is served.
void MasterSlaveStates::readTable(Master master)
{
    pugi::xml_document document;
    QByteArray bytes;
    parts().files.read(QLatin1String(Names[master].file), bytes);
    const pugi::xml_node group = ControllerXml::load(bytes, Names[master].root, document).child("Group");
    QByteArray devices;
    parts().files.read(QLatin1String(OverrideFile), devices);
    const int count = group.child("SlaveNum").text().as_int();
    Table& table = m_tables[master];
    table.hasDevice = isDeviceInUse(devices, Names[master].device);
    table.couplingTimeout = qMax(0, group.child("EnableTimeout").text().as_int());
    table.decouplingTimeout = qMax(0, group.child("DisableTimeout").text().as_int());
    for (int position = 0; position < PositionCount; ++position) {
        const int number = position + 1;
        Service& service = slave(master, position).service;
        service = Service::None;
        if (number > count)
            continue;
        if (isFlagSet(group, "SlaveFixed", "FixSlave", number))
            service = Service::Fixed;
        else if (isFlagSet(group, "SlaveDynamic", "DynSlave", number))
            service = Service::Dynamic;
    }
}

void MasterSlaveStates::start(Master master)
{
    Table& table = m_tables[master];
    table.runs = table.hasDevice && parts().roles.isOn(Names[master].role);
    const bool served = std::any_of(table.slaves.begin(), table.slaves.end(),
                                    [](const Slave& slave) { return slave.service != Service::None; });
    parts().variables.set(variable(master, "_configured"), table.runs && served ? 1 : 0);
    for (int position = 0; position < PositionCount; ++position)
        serve(master, position);
}

void MasterSlaveStates::serve(Master master, int position)
{
    Slave& served = slave(master, position);
    const bool runs = m_tables[master].runs;
    drop(keyOf(master, position));
    // While a phase lasts nothing is said of it.
    served.coupling = Nothing;
    served.decoupling = Nothing;
    if (runs && served.service == Service::Dynamic)
        beginPhase(master, position);
    else
        served.connected = runs && served.service == Service::Fixed && served.plugged;
    publish(master, position);
}

void MasterSlaveStates::beginPhase(Master master, int position)
{
    const Slave& served = slave(master, position);
    const Table& table = m_tables[master];
    // A slave that was connected and is taken away is decoupled; any other is waited for.
    const bool couples = served.plugged || !served.connected;
    const int timeout = couples ? table.couplingTimeout : table.decouplingTimeout;
    const int takes = couples ? CouplingMs : DecouplingMs;
    const bool inTime = takes <= timeout && (served.plugged || !couples);
    later(keyOf(master, position), inTime ? takes : timeout, [this, master, position, couples, inTime] {
        Slave& settled = slave(master, position);
        (couples ? settled.coupling : settled.decoupling) = inTime ? Done : Failed;
        settled.connected = couples && inTime;
        publish(master, position);
    });
}

void MasterSlaveStates::publish(Master master, int position)
{
    const Slave& shown = slave(master, position);
    VariableStore& variables = parts().variables;
    variables.set(variable(master, "_status"), position, shown.connected ? 1.0 : 0.0);
    variables.set(variable(master, "_enable_status"), position, shown.coupling);
    variables.set(variable(master, "_disable_status"), position, shown.decoupling);
}
