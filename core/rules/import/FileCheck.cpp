#include "FileCheck.h"

#include "AsciiText.h"
#include "FileNeeds.h"
#include "MappingFile.h"

#include <QSet>

#include <pugixml.hpp>

#include <algorithm>
#include <cstring>
#include <vector>

using namespace std::string_view_literals;

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

Fault fault(Fault::Kind kind, const char* text, const QStringList& arguments = {})
{
    return {kind, 0, {text, arguments}};
}

bool holds(const QByteArray& content, std::string_view text)
{
    return AsciiText::find(AsciiText::view(content), text) != std::string_view::npos;
}

bool isBlank(const QByteArray& content)
{
    return AsciiText::trimmed(AsciiText::view(content)).empty();
}

std::optional<Fault> faultOfProlog(const QByteArray& content, const ParsedXml& xml)
{
    const auto atLine = [&content](qint64 offset, const QString& words) {
        const int line = lineAt(content, offset);
        return Fault{Fault::NotXml, line, {AtLine, {QString::number(line), words}}};
    };
    if (!xml.result())
        return atLine(xml.result().offset, QString::fromLatin1(xml.result().description()));
    int elements = 0;
    for (const pugi::xml_node node : xml.document().children()) {
        if (node.type() == pugi::node_doctype)
            return atLine(0, QStringLiteral("DOCTYPE"));
        if (node.type() == pugi::node_element && ++elements > 1)
            return atLine(node.offset_debug(), QString::fromUtf8(node.name()));
    }
    if (elements == 0)
        return atLine(content.size(), QStringLiteral("No document element found"));
    return {};
}

// "<a/>"; what is too short to hold too much is not looked through for that.
constexpr int ShortestElement = 4;

struct Walk : pugi::xml_tree_walker
{
    Walk(const std::vector<const char*>* known, bool isMeasured)
        : vocabulary(known)
        , measures(isMeasured)
    {
    }
    bool for_each(pugi::xml_node& node) override
    {
        if (node.type() == pugi::node_declaration)
            return true;
        if (measures)
            measure(node);
        if (node.type() == pugi::node_element) {
            ++elements;
            if (vocabulary && depth() > 0)
                lookUp(node.name());
        }
        return !isTooMuch();
    }
    bool isTooMuch() const { return elements > MostElements || longest > std::size_t{MostText}; }

    void measure(const pugi::xml_node& node)
    {
        longest = std::max<std::size_t>(longest, qstrlen(node.value()));
        for (const pugi::xml_attribute attribute : node.attributes())
            longest = std::max<std::size_t>(longest, qstrlen(attribute.value()));
    }

    void lookUp(const char* text)
    {
        constexpr std::size_t Enough = 5; // for a person
        const auto isName = [text](const char* element) {
            return *element == *text && std::strcmp(element, text) == 0;
        };
        if (unknown.size() < Enough && std::none_of(vocabulary->begin(), vocabulary->end(), isName) &&
            std::find(unknown.begin(), unknown.end(), text) == unknown.end())
            unknown.emplace_back(text);
    }

    const std::vector<const char*>* vocabulary;
    bool measures; ///< a text may be too long
    std::vector<QByteArray> unknown;
    int elements = 0;
    std::size_t longest = 0;
};

// False when it holds more than it may.
bool walk(FileId file, const QByteArray& content, const ParsedXml& xml, Report& report)
{
    const auto* known = FileNeeds::elementsOf(file);
    const bool isSmall = content.size() <= MostText && content.size() / ShortestElement <= MostElements;
    if (isSmall && !known)
        return true;
    Walk walker(known, !isSmall);
    pugi::xml_node(xml.document()).traverse(walker);
    report.unknownElements = std::move(walker.unknown);
    if (walker.isTooMuch() || file != FileId::RoleList)
        return !walker.isTooMuch();
    QSet<QString> seen;
    int count = 0;
    for (const pugi::xml_node entry : xml.root().children("Bus")) {
        if (++count > MostRoles)
            return false;
        const QString name = QString::fromUtf8(entry.attribute("name").value());
        if (seen.contains(name) && !report.doubledRoles.contains(name))
            report.doubledRoles << name;
        seen.insert(name);
    }
    return true;
}

std::optional<Fault> faultOfXml(const KnownFile& file, const QByteArray& content, const QByteArray* present,
                                Report& report, ParsedXml& xml)
{
    const FileNeeds::Names* needs = FileNeeds::namesOf(file.id);
    std::optional<ParsedXml> own;
    if (present && !isBlank(*present)) {
        own.emplace().load(*present);
        if (!own->result() || !own->root())
            return {}; // the controller's own is no XML either
    }
    if (!AsciiText::isUtf8(AsciiText::view(content)))
        return fault(Fault::NotText, IsNotUtf8);
    xml.load(content);
    if (const auto found = faultOfProlog(content, xml))
        return found;
    if (!walk(file.id, content, xml, report))
        return fault(Fault::TooMany, HasTooMuch);
    const char* root = own ? own->root().name() : needs ? file.root : nullptr;
    if (root && qstrcmp(root, xml.root().name()) != 0)
        return fault(Fault::WrongRoot, OtherRoot,
                     {QString::fromUtf8(xml.root().name()), QString::fromUtf8(root)});
    for (const char* name : needs ? *needs : FileNeeds::Names()) {
        if (name && !xml.root().child(name) && (!own || own->root().child(name)))
            return fault(Fault::Incomplete, Lacks, {QLatin1String(name)});
    }
    return {};
}

bool begins(std::string_view text, std::string_view word)
{
    return text.substr(0, word.size()) == word;
}

// Each device of a scan list has a comment, an input block, an output block and a line that closes it.
bool isCut(const QByteArray& content)
{
    constexpr std::string_view Rule = ";=====";
    constexpr std::size_t Nowhere = std::string_view::npos;
    const std::string_view all = AsciiText::view(content);
    std::string_view first; // from the first rule on
    std::string_view last = all;
    int inputs = 0;
    int outputs = 0;
    bool isBare = false; // the last device has no input block yet
    bool isOpen = false; // nothing closes the last output block
    for (std::size_t feed = all.find('\n'); feed != Nowhere; feed = all.find('\n', feed + 1)) {
        last = all.substr(feed + 1);
        if (begins(last, "BLOCK_TO_RBX")) {
            ++inputs;
            isBare = false;
        } else if (begins(last, "BLOCK_FROM_RBX")) {
            ++outputs;
            isOpen = true;
        } else if (begins(last, ";   Device ")) {
            isBare = true;
        } else if (begins(last, Rule)) {
            isOpen = false;
            first = first.empty() ? last : first;
        }
    }
    // In the line that opens the next device.
    const std::string_view next = first.substr(std::min(last.size(), first.size()));
    const bool isRule = begins(first, last) && (begins(next, "\n") || begins(next, "\r"));
    return inputs != outputs || isBare || isOpen || (begins(last, Rule) && !isRule);
}

std::optional<Fault> faultOfText(const KnownFile& file, const QByteArray& content, const QByteArray* present)
{
    if (holds(content, "\0"sv) && !(present && holds(*present, "\0"sv)))
        return fault(Fault::NotText, IsNoText);
    const FileNeeds::Names* needs = FileNeeds::namesOf(file.id);
    if (!needs)
        return {};
    for (const char* name : *needs) {
        if (name && !holds(content, name) && (!present || isBlank(*present) || holds(*present, name)))
            return fault(Fault::Incomplete, Lacks, {QLatin1String(name)});
    }
    if (file.id == FileId::DeviceNetMaster && isCut(content) && !(present && isCut(*present)))
        return fault(Fault::Incomplete, IsCut);
    return {};
}

std::optional<Fault> check(const KnownFile& file, const QByteArray& content, const QByteArray* present,
                           Report& report, ParsedXml& xml)
{
    if (content.size() > KnownFiles::MostBytes)
        return fault(Fault::TooLarge, IsTooLarge);
    // The groups of a robot without any are an empty file.
    if (isBlank(content)) {
        if (file.id == FileId::GroupIo || (present && isBlank(*present)))
            return {};
        return fault(Fault::Empty, IsEmpty);
    }
    return file.root ? faultOfXml(file, content, present, report, xml) : faultOfText(file, content, present);
}

} // namespace

std::optional<Fault> faultOf(const KnownFile& file, const QByteArray& content, const QByteArray* present)
{
    if (present && *present == content)
        return {};
    Report report;
    ParsedXml xml;
    if (const auto found = check(file, content, present, report, xml))
        return found;
    MappingConfig mapping;
    if (file.id == FileId::Mapping && !MappingFile::read(content, mapping) &&
        !(present && !MappingFile::read(*present, mapping)))
        return refusedByReader(file.id);
    return {};
}

Report examine(const KnownFile& file, const QByteArray& content, ParsedXml& xml)
{
    Report report;
    report.fault = check(file, content, nullptr, report, xml);
    return report;
}

Report examine(const KnownFile& file, const QByteArray& content)
{
    ParsedXml xml;
    return examine(file, content, xml);
}

Fault refusedByReader(FileId file)
{
    return fault(Fault::Incomplete, file == FileId::Mapping ? HasOddNumbers : CannotBeRead);
}

int lineAt(const QByteArray& content, qint64 offset)
{
    const auto size = static_cast<std::size_t>(qBound<qint64>(0, offset, content.size()));
    const std::string_view before = AsciiText::view(content).substr(0, size);
    int line = 1;
    for (std::size_t at = before.find('\n'); at != std::string_view::npos; at = before.find('\n', at + 1))
        ++line;
    return line;
}

} // namespace FileCheck
