#include "BusConfigFile.h"

#include "XmlBytes.h"

#include <QSet>

#include <algorithm>

namespace {
constexpr auto Root = "Fieldbus";
constexpr auto Entry = "Bus";
constexpr auto Name = "name";
constexpr auto Enable = "enable";
} // namespace

bool BusConfigFile::parse(const QByteArray& bytes)
{
    pugi::xml_document document;
    if (!loadXml(bytes, Root, document))
        return false;
    m_source = bytes;
    m_roles.clear();
    QSet<QString> seen;
    for (const pugi::xml_node& entry : document.child(Root).children(Entry)) {
        BusName role;
        role.name = QString::fromUtf8(entry.attribute(Name).value());
        role.enabled = entry.attribute(Enable).as_int() == 1;
        if (role.name.isEmpty() || seen.contains(role.name))
            continue;
        seen.insert(role.name);
        m_roles.push_back(role);
    }
    return true;
}

QByteArray BusConfigFile::toBytes() const
{
    pugi::xml_document document;
    if (!loadXml(m_source, Root, document))
        return {};
    QMap<QString, bool> enabled;
    for (const BusName& role : m_roles)
        enabled.insert(role.name, role.enabled);
    for (const pugi::xml_node& entry : document.child(Root).children(Entry)) {
        const auto role = enabled.constFind(QString::fromUtf8(entry.attribute(Name).value()));
        // Also a second entry with the name: whoever reads the last one sees the same.
        if (role != enabled.constEnd())
            ensureAttribute(entry, Enable).set_value(*role ? "1" : "0");
    }
    return saveXml(document);
}

bool BusConfigFile::isEnabled(const QString& role) const
{
    return std::any_of(m_roles.begin(), m_roles.end(),
                       [&role](const BusName& known) { return known.enabled && known.name == role; });
}

void BusConfigFile::setRoles(const QMap<QString, BusName>& roles)
{
    for (BusName& role : m_roles) {
        const auto changed = roles.constFind(role.name);
        if (changed != roles.constEnd())
            role.enabled = changed->enabled;
    }
}
