#include "RoleListFile.h"

#include "WholeFile.h"
#include "XmlFile.h"

#include <algorithm>

namespace {

constexpr const char* RootElement = "Fieldbus";
constexpr const char* RoleElement = "Bus";
constexpr const char* NameAttribute = "name";
constexpr const char* EnableAttribute = "enable";
constexpr int On = 1;

// Comments and white space are kept: what is written back differs in one attribute only.
bool load(const QString& path, pugi::xml_document& document)
{
    QByteArray content;
    return WholeFile::read(path, content) &&
           document.load_buffer(content.constData(), static_cast<std::size_t>(content.size()),
                                (pugi::parse_full | pugi::parse_ws_pcdata) & ~pugi::parse_eol) &&
           document.child(RootElement);
}

} // namespace

bool RoleListFile::read(const QString& path, std::vector<ListedRole>& roles)
{
    pugi::xml_document document;
    if (!load(path, document))
        return false;
    roles.clear();
    for (const pugi::xml_node bus : document.child(RootElement).children(RoleElement)) {
        const QString name = QString::fromUtf8(bus.attribute(NameAttribute).value());
        const bool known = std::any_of(roles.begin(), roles.end(),
                                       [&name](const ListedRole& role) { return role.name == name; });
        if (!name.isEmpty() && !known)
            roles.push_back({name, bus.attribute(EnableAttribute).as_int() == On});
    }
    return true;
}

bool RoleListFile::switchOff(const QString& path, const QString& role)
{
    pugi::xml_document document;
    if (!load(path, document))
        return false;
    for (const pugi::xml_node bus : document.child(RootElement).children(RoleElement)) {
        if (role == QString::fromUtf8(bus.attribute(NameAttribute).value()))
            bus.attribute(EnableAttribute).set_value("0");
    }
    return XmlFile::save(path, document, pugi::format_raw);
}
