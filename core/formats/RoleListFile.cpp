#include "RoleListFile.h"

#include "AsciiText.h"
#include "KeptXml.h"

#include <QSet>

#include <algorithm>

namespace {

constexpr const char* RootElement = "Fieldbus";
constexpr const char* RoleElement = "Bus";
constexpr const char* NameAttribute = "name";
constexpr std::string_view EnableAttribute = "enable";
constexpr int On = 1;

// The value of the attribute `enable` in the tag that begins at `tag` with the element's name; empty when it
// has none. The document was parsed: quotes and equal signs are where they have to be.
std::string_view enableValue(std::string_view tag)
{
    std::size_t at = tag.find_first_of(" \t\r\n/>");
    while (true) {
        at = tag.find_first_not_of(" \t\n\v\f\r", at);
        if (at == std::string_view::npos || tag[at] == '/' || tag[at] == '>')
            return {};
        const std::size_t equal = tag.find('=', at);
        const std::size_t open = tag.find_first_of("\"'", equal);
        if (open == std::string_view::npos)
            return {};
        const std::size_t close = tag.find(tag[open], open + 1);
        if (close == std::string_view::npos)
            return {};
        if (AsciiText::trimmed(tag.substr(at, equal - at)) == EnableAttribute)
            return tag.substr(open + 1, close - open - 1);
        at = close + 1;
    }
}

} // namespace

bool RoleListFile::read(const QByteArray& bytes, std::vector<ListedRole>& roles)
{
    pugi::xml_document document;
    return KeptXml::load(bytes, RootElement, document) && readFrom(document, roles);
}

bool RoleListFile::readFrom(const pugi::xml_document& document, std::vector<ListedRole>& roles)
{
    const pugi::xml_node root = document.child(RootElement);
    if (!root)
        return false;
    roles.clear();
    QSet<QString> known;
    for (const pugi::xml_node bus : root.children(RoleElement)) {
        const QString name = KeptXml::text(bus.attribute(NameAttribute));
        if (name.isEmpty() || known.contains(name))
            continue;
        known.insert(name);
        roles.push_back({name, bus.attribute(EnableAttribute.data()).as_int() == On});
    }
    return true;
}

bool RoleListFile::isOn(const std::vector<ListedRole>& roles, const QString& name)
{
    return std::any_of(roles.begin(), roles.end(),
                       [&name](const ListedRole& role) { return role.on && role.name == name; });
}

// In the bytes, so that the file stays the same in all that is not switched. An entry without the attribute
// is off already.
QByteArray RoleListFile::switchedOff(const QByteArray& bytes, const QString& role)
{
    pugi::xml_document document;
    const pugi::xml_node root = KeptXml::load(bytes, RootElement, document);
    if (!root)
        return {};
    const std::string_view all(bytes.constData(), static_cast<std::size_t>(bytes.size()));
    const QByteArray name = role.toUtf8();
    QByteArray out;
    std::size_t done = 0;
    for (const pugi::xml_node bus : root.children(RoleElement)) {
        if (name != bus.attribute(NameAttribute).value())
            continue;
        const std::string_view value = enableValue(all.substr(static_cast<std::size_t>(bus.offset_debug())));
        if (value.data() == nullptr)
            continue;
        const auto begin = static_cast<std::size_t>(value.data() - all.data());
        out.append(AsciiText::raw(all.substr(done, begin - done))).append('0');
        done = begin + value.size();
    }
    return out.append(AsciiText::raw(all.substr(done)));
}
