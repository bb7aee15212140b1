#include "FileNeeds.h"

#include "MasterTableFile.h"

#include <algorithm>

namespace FileNeeds {

namespace {

// What a file must hold to be the one of its name: elements below the root, or keywords in its lines.
struct Needs
{
    FileId file;
    Names names;
};
constexpr Needs Required[] = {
    {FileId::Heartbeat, {"Mtcp"}},
    {FileId::Mapping, {"Mode"}},
    {FileId::RoleList, {"Bus"}},
    {FileId::DeviceNetSlave, {"Dns"}},
    {FileId::EipMaster, {"Group"}},
    {FileId::PfnMaster, {"Group"}},
    {FileId::MtcpMaster, {"Group"}},
    {FileId::SlaveModule, {"Endian"}},
    {FileId::MesServer, {"Port"}},
    {FileId::FinsClient, {"ServerIP"}},
    {FileId::NetworkPorts, {"Port"}},
    {FileId::ProfisafeDescription, {}},
    {FileId::BusSwitch, {}},
    {FileId::PfbSlave, {"PROFIBUS_ADDRESS", "DISABLE_COM_ALARM", "RUN_ALWAYS"}},
    {FileId::PfbFree, {"RUN_ALWAYS"}},
    {FileId::PfbFixed, {"RUN_ALWAYS"}},
    {FileId::EipSlave, {"IPADDR", "NETMASK", "RUN_ALWAYS"}},
    {FileId::EipSlaveFree, {"RUN_ALWAYS"}},
    {FileId::EipSlaveFixed, {"RUN_ALWAYS"}},
    {FileId::DeviceNetMaster, {"WS_ID", "BAUDRATE", "PACHET_RATIO"}},
};

// The elements below the root that a reader knows.
struct Vocabulary
{
    FileId file;
    std::vector<const char*> elements;
};

const std::vector<Vocabulary>& vocabularies()
{
    static const std::vector<const char*> master = [] {
        std::vector<const char*> names = {"Group",         "SlaveNum",   "DisableTimeout",
                                          "EnableTimeout", "SlaveFixed", "SlaveDynamic"};
        for (const MasterSlaveTable::Position& position : MasterSlaveTable::positions())
            names.insert(names.end(), {position.fixedElement, position.dynamicElement});
        return names;
    }();
    static const std::vector<Vocabulary> table = {
        {FileId::MtcpMaster,
         {"Group", "SlaveIp", "SlavePort", "SlaveId", "TimeOut", "ReadEndian", "WriteEndian", "Alivetime"}},
        {FileId::MesServer, {"Port", "Mode", "Protocol", "IntervalTime", "IpPortIndex"}},
        {FileId::FinsClient,
         {"ServerIP", "ServerPort", "ClientNode", "AutoConnect", "ReadDmAddress", "WriteDmAddress",
          "IpPortIndex"}},
        {FileId::DeviceNetSlave, {"Dns", "Dns_MACID", "Dns_BAUDRATE"}},
        {FileId::EipMaster, master},
        {FileId::PfnMaster, master},
        {FileId::Mapping, {"Mode", "Bus", "Area", "User", "System"}},
        {FileId::RoleList, {"Bus"}},
        {FileId::NetworkPorts, {"Port"}},
    };
    return table;
}

} // namespace

const Names* namesOf(FileId file)
{
    const auto found = std::find_if(std::begin(Required), std::end(Required),
                                    [file](const Needs& needs) { return needs.file == file; });
    return found == std::end(Required) ? nullptr : &found->names;
}

const std::vector<const char*>* elementsOf(FileId file)
{
    for (const Vocabulary& vocabulary : vocabularies()) {
        if (vocabulary.file == file)
            return &vocabulary.elements;
    }
    return nullptr;
}

} // namespace FileNeeds
