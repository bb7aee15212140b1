#include "Rules.h"

#include "RoleListFile.h"

#include <QSet>

#include <pugixml.hpp>

#include <algorithm>

namespace Rules {

namespace {

using State = Configuration::State;

FindingCode codeOf(FileCheck::Fault::Kind kind)
{
    switch (kind) {
    case FileCheck::Fault::Empty:
        return FindingCode::FileEmpty;
    case FileCheck::Fault::TooLarge:
    case FileCheck::Fault::TooMany:
        return FindingCode::FileTooLarge;
    case FileCheck::Fault::NotText:
        return FindingCode::FileNotText;
    case FileCheck::Fault::NotXml:
        return FindingCode::FileNotXml;
    case FileCheck::Fault::WrongRoot:
        return FindingCode::FileOtherRoot;
    case FileCheck::Fault::Incomplete:
        break;
    }
    return FindingCode::FileIncomplete;
}

// The elements that a record's reader knows, wherever they stand below the root.
struct Vocabulary
{
    FileId file;
    std::vector<const char*> elements;
};

const std::vector<Vocabulary>& vocabularies()
{
    static const std::vector<Vocabulary> table = {
        {FileId::MtcpMaster,
         {"Group", "SlaveIp", "SlavePort", "SlaveId", "TimeOut", "ReadEndian", "WriteEndian", "Alivetime"}},
        {FileId::MesServer, {"Port", "Mode", "Protocol", "IntervalTime", "IpPortIndex"}},
        {FileId::FinsClient,
         {"ServerIP", "ServerPort", "ClientNode", "AutoConnect", "ReadDmAddress", "WriteDmAddress",
          "IpPortIndex"}},
        {FileId::DeviceNetSlave, {"Dns", "Dns_MACID", "Dns_BAUDRATE"}},
        {FileId::EipMaster,
         {"Group", "SlaveNum", "DisableTimeout", "EnableTimeout", "SlaveFixed", "SlaveDynamic"}},
        {FileId::PfnMaster,
         {"Group", "SlaveNum", "DisableTimeout", "EnableTimeout", "SlaveFixed", "SlaveDynamic"}},
        {FileId::Mapping, {"Mode", "Bus", "Area", "User", "System"}},
        {FileId::RoleList, {"Bus"}},
        {FileId::NetworkPorts, {"Port"}},
    };
    return table;
}

bool isPosition(const QByteArray& element)
{
    const auto isOf = [&element](const MasterSlaveTable::Position& position) {
        return element == position.fixedElement || element == position.dynamicElement;
    };
    return std::any_of(MasterSlaveTable::positions().begin(), MasterSlaveTable::positions().end(), isOf);
}

struct Unknown : pugi::xml_tree_walker
{
    explicit Unknown(const Vocabulary& known)
        : vocabulary(known)
    {
    }
    bool for_each(pugi::xml_node& node) override
    {
        const QByteArray name = node.name();
        const bool isKnown = node.type() != pugi::node_element || depth() == 0 ||
                             std::any_of(vocabulary.elements.begin(), vocabulary.elements.end(),
                                         [&name](const char* element) { return name == element; }) ||
                             isPosition(name);
        if (!isKnown && !names.contains(name))
            names.append(name);
        return names.size() < 5; // enough for a person
    }
    const Vocabulary& vocabulary;
    QList<QByteArray> names;
};

void unknownRoles(const Configuration& configuration, FindingList& found)
{
    for (const ListedRole& role : configuration.listed) {
        if (!RoleTable::named(role.name))
            found.add(FindingCode::UnknownRole, {{}, FileId::RoleList, {'"' + role.name.toUtf8() + '"'}},
                      {role.name},
                      {FindingList::fact(role.name, FileId::RoleList,
                                         role.on ? QStringLiteral("1") : QStringLiteral("0"))});
    }
}

void doubledRoles(const Configuration& configuration, FindingList& found)
{
    if (!configuration.isRead(FileId::RoleList))
        return;
    pugi::xml_document document;
    const QByteArray& bytes = configuration.bytes(FileId::RoleList);
    document.load_buffer(bytes.constData(), static_cast<std::size_t>(bytes.size()));
    QSet<QString> seen;
    QSet<QString> told;
    for (const pugi::xml_node bus : document.document_element().children("Bus")) {
        const QString name = QString::fromUtf8(bus.attribute("name").value());
        const QByteArray quoted = '"' + name.toUtf8() + '"';
        if (seen.contains(name) && !told.contains(name)) {
            found.add(FindingCode::RoleListedTwice, {{}, FileId::RoleList, {quoted, quoted}}, {name},
                      {FindingList::fact(QStringLiteral("Bus"), FileId::RoleList, name)});
            told.insert(name);
        }
        seen.insert(name);
    }
}

} // namespace

void files(const Configuration& configuration, FindingList& found)
{
    for (const KnownFile& known : KnownFiles::all()) {
        const Configuration::File& file = configuration.file(known.id);
        const QString name = QLatin1String(known.name);
        if (file.state == State::Missing && known.isExported())
            found.add(FindingCode::FileMissing, {{}, known.id}, {name},
                      {{QStringLiteral("file"), name, QLatin1String(known.controller)}});
        if (!file.fault)
            continue;
        found.add(codeOf(file.fault->kind), {{}, known.id}, {name},
                  {{QStringLiteral("file"), name, file.fault->text.inEnglish()}}, file.fault->line);
    }
    unknownRoles(configuration, found);
    doubledRoles(configuration, found);
}

void unknownElements(const Configuration& configuration, FindingList& found)
{
    for (const Vocabulary& vocabulary : vocabularies()) {
        if (!configuration.isRead(vocabulary.file))
            continue;
        const QByteArray& bytes = configuration.bytes(vocabulary.file);
        pugi::xml_document document;
        document.load_buffer(bytes.constData(), static_cast<std::size_t>(bytes.size()));
        Unknown unknown(vocabulary);
        document.traverse(unknown);
        for (const QByteArray& name : unknown.names)
            found.add(
                FindingCode::UnknownElement, {{}, vocabulary.file, {'<' + name}},
                {QLatin1String(KnownFiles::of(vocabulary.file).name), QString::fromUtf8(name)},
                {FindingList::fact(QStringLiteral("element"), vocabulary.file, QString::fromUtf8(name))});
    }
}

} // namespace Rules
