#include "RoleListFile.h"

#include <QRegularExpression>

#include <pugixml.hpp>

#include <algorithm>

namespace {

constexpr const char* RootElement = "Fieldbus";
constexpr const char* RoleElement = "Bus";
constexpr const char* NameAttribute = "name";
constexpr const char* EnableAttribute = "enable";
constexpr int On = 1;

bool load(const QByteArray& content, pugi::xml_document& document)
{
    return document.load_buffer(content.constData(), static_cast<std::size_t>(content.size()),
                                pugi::parse_default, pugi::encoding_utf8) &&
           document.child(RootElement);
}

// Switches the element off whose name stands at `offset`. One without the attribute is off already.
void switchOffAt(QByteArray& content, int offset)
{
    static const QRegularExpression enable(
        QStringLiteral(
            R"(^[^\s/>]+(?:\s+[^\s=/>]+\s*=\s*(?:"[^"]*"|'[^']*'))*?\s+%1\s*=\s*("[^"]*"|'[^']*'))")
            .arg(QLatin1String(EnableAttribute)));
    const QRegularExpressionMatch found = enable.match(QString::fromLatin1(content.mid(offset)));
    if (found.hasMatch())
        content.replace(offset + found.capturedStart(1) + 1, found.capturedLength(1) - 2, "0");
}

} // namespace

bool RoleListFile::read(const QByteArray& content, std::vector<ListedRole>& roles)
{
    pugi::xml_document document;
    if (!load(content, document))
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

// In the bytes, so that the file stays the same in all that is not switched; from the end, so that the
// offsets before stay valid.
QByteArray RoleListFile::switchedOff(QByteArray content, const QString& role)
{
    pugi::xml_document document;
    if (!load(content, document))
        return {};
    for (pugi::xml_node bus = document.child(RootElement).last_child(); bus; bus = bus.previous_sibling()) {
        if (qstrcmp(bus.name(), RoleElement) == 0 &&
            role == QString::fromUtf8(bus.attribute(NameAttribute).value()))
            switchOffAt(content, static_cast<int>(bus.offset_debug()));
    }
    return content;
}
