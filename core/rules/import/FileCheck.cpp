#include "FileCheck.h"

#include "AsciiText.h"
#include "MappingFile.h"
#include "TextTemplate.h"

#include <pugixml.hpp>

#include <algorithm>
#include <vector>

namespace FileCheck {

namespace {

constexpr const char* IsEmpty = QT_TRANSLATE_NOOP("ImportJudge", "is empty");
constexpr const char* IsTooLarge =
    QT_TRANSLATE_NOOP("ImportJudge", "is larger than any file of a controller");
constexpr const char* IsNoText = QT_TRANSLATE_NOOP("ImportJudge", "is no text");
constexpr const char* IsNotUtf8 = QT_TRANSLATE_NOOP("ImportJudge", "is not in UTF-8");
constexpr const char* AtLine = QT_TRANSLATE_NOOP("ImportJudge", "line %1: %2");
constexpr const char* OtherRoot = QT_TRANSLATE_NOOP("ImportJudge", "begins with \"%1\" instead of \"%2\"");
constexpr const char* Lacks = QT_TRANSLATE_NOOP("ImportJudge", "has no \"%1\"");
constexpr const char* IsCut = QT_TRANSLATE_NOOP("ImportJudge", "ends in the middle of a device");
constexpr const char* HasTooMuch =
    QT_TRANSLATE_NOOP("ImportJudge", "holds more than any file of a controller");
constexpr const char* CannotBeRead = QT_TRANSLATE_NOOP("ImportJudge", "cannot be read");
constexpr const char* HasOddNumbers =
    QT_TRANSLATE_NOOP("ImportJudge", "holds a quantity or an address that is no number in its range");

// What a file must hold to be the one of its name: elements below the root, or keywords in its lines.
struct Needs
{
    FileId file;
    std::array<const char*, 3> names;
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

// Null for a file that nothing here reads.
const Needs* needsOf(FileId file)
{
    const auto found = std::find_if(std::begin(Required), std::end(Required),
                                    [file](const Needs& needs) { return needs.file == file; });
    return found == std::end(Required) ? nullptr : found;
}

Fault fault(Fault::Kind kind, const char* text, const QStringList& arguments = {})
{
    return {kind, 0, {text, arguments}};
}

bool isBlank(const QByteArray& content)
{
    return AsciiText::trimmed({content.constData(), static_cast<std::size_t>(content.size())}).empty();
}

pugi::xml_node rootOf(const pugi::xml_document& document)
{
    for (const pugi::xml_node node : document.children()) {
        if (node.type() == pugi::node_element)
            return node;
    }
    return {};
}

// The parser that reads them, with what it passes over in silence.
struct Xml
{
    explicit Xml(const QByteArray& content)
        : result(document.load_buffer(content.constData(), static_cast<std::size_t>(content.size()),
                                      pugi::parse_pi | pugi::parse_doctype, pugi::encoding_utf8))
        , root(rootOf(document))
    {
    }
    bool isXml() const { return result && root; }

    pugi::xml_document document;
    pugi::xml_parse_result result;
    pugi::xml_node root;
};

std::optional<Fault> faultOfProlog(const QByteArray& content, const Xml& xml)
{
    const auto atLine = [&content](qint64 offset, const QString& words) {
        const int line = lineAt(content, offset);
        return Fault{Fault::NotXml, line, {AtLine, {QString::number(line), words}}};
    };
    if (!xml.result)
        return atLine(xml.result.offset, QString::fromLatin1(xml.result.description()));
    int elements = 0;
    for (const pugi::xml_node node : xml.document.children()) {
        if (node.type() == pugi::node_doctype)
            return atLine(0, QStringLiteral("DOCTYPE"));
        if (node.type() == pugi::node_element && ++elements > 1)
            return atLine(node.offset_debug(), QString::fromUtf8(node.name()));
    }
    if (elements == 0)
        return atLine(content.size(), QStringLiteral("No document element found"));
    return {};
}

struct Counter : pugi::xml_tree_walker
{
    bool for_each(pugi::xml_node& node) override
    {
        elements += node.type() == pugi::node_element ? 1 : 0;
        longest = std::max(longest, qstrlen(node.value()));
        for (const pugi::xml_attribute attribute : node.attributes())
            longest = std::max(longest, qstrlen(attribute.value()));
        return elements <= MostElements && longest <= uint(MostText);
    }
    int elements = 0;
    uint longest = 0;
};

bool holdsTooMuch(FileId file, Xml& xml)
{
    Counter counter;
    if (!xml.document.traverse(counter))
        return true;
    const auto children = xml.root.children();
    return file == FileId::RoleList && std::distance(children.begin(), children.end()) > MostRoles;
}

std::optional<Fault> faultOfXml(const KnownFile& file, const QByteArray& content, const QByteArray* present)
{
    const Needs* needs = needsOf(file.id);
    std::optional<Xml> own;
    if (present && !isBlank(*present)) {
        own.emplace(*present);
        if (!own->isXml())
            return {}; // the controller's own is no XML either
    }
    if (!AsciiText::isUtf8(content))
        return fault(Fault::NotText, IsNotUtf8);
    Xml xml(content);
    if (const auto found = faultOfProlog(content, xml))
        return found;
    if (holdsTooMuch(file.id, xml))
        return fault(Fault::TooMany, HasTooMuch);
    const char* root = own ? own->root.name() : needs ? file.root : nullptr;
    if (root && qstrcmp(root, xml.root.name()) != 0)
        return fault(Fault::WrongRoot, OtherRoot,
                     {QString::fromUtf8(xml.root.name()), QString::fromUtf8(root)});
    for (const char* name : needs ? needs->names : std::array<const char*, 3>()) {
        if (name && !xml.root.child(name) && (!own || own->root.child(name)))
            return fault(Fault::Incomplete, Lacks, {QLatin1String(name)});
    }
    MappingConfig mapping;
    if (file.id == FileId::Mapping && !MappingFile::read(content, mapping))
        return fault(Fault::Incomplete, HasOddNumbers);
    return {};
}

// Each device of a scan list has an input block and an output block.
bool isCut(const QByteArray& content)
{
    return content.count("\nBLOCK_TO_RBX") != content.count("\nBLOCK_FROM_RBX");
}

std::optional<Fault> faultOfText(const KnownFile& file, const QByteArray& content, const QByteArray* present)
{
    if (content.contains('\0') && !(present && present->contains('\0')))
        return fault(Fault::NotText, IsNoText);
    const Needs* needs = needsOf(file.id);
    if (!needs)
        return {};
    for (const char* name : needs->names) {
        if (name && !content.contains(name) && (!present || isBlank(*present) || present->contains(name)))
            return fault(Fault::Incomplete, Lacks, {QLatin1String(name)});
    }
    if (file.id == FileId::DeviceNetMaster && isCut(content) && !(present && isCut(*present)))
        return fault(Fault::Incomplete, IsCut);
    return {};
}

} // namespace

std::optional<Fault> faultOf(const KnownFile& file, const QByteArray& content, const QByteArray* present)
{
    if (present && *present == content)
        return {};
    if (content.size() > KnownFiles::MostBytes)
        return fault(Fault::TooLarge, IsTooLarge);
    // The groups of a robot without any are an empty file.
    if (isBlank(content)) {
        if (file.id == FileId::GroupIo || (present && isBlank(*present)))
            return {};
        return fault(Fault::Empty, IsEmpty);
    }
    return file.root ? faultOfXml(file, content, present) : faultOfText(file, content, present);
}

Fault refusedByReader()
{
    return fault(Fault::Incomplete, CannotBeRead);
}

int lineAt(const QByteArray& content, qint64 offset)
{
    const auto end = content.begin() + qBound<qint64>(0, offset, content.size());
    return 1 + static_cast<int>(std::count(content.begin(), end, '\n'));
}

} // namespace FileCheck
