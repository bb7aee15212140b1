#include "Partner.h"

#include "ControllerParts.h"
#include "ControllerXml.h"

void Partner::note(const QString& text)
{
    m_parts.traffic.addNote(QStringLiteral("partner %1: %2").arg(m_name, text));
}

void Partner::ask(const char* variable)
{
    if (!m_parts.isUp)
        return; // the write would be lost
    m_parts.variables.changedByPendant(QLatin1String(variable), 0, 1.0);
}

bool Partner::changeSettings(const char* path, const char* root, const char* group,
                             std::initializer_list<std::pair<const char*, QByteArray>> texts)
{
    QByteArray bytes;
    pugi::xml_document document;
    m_parts.files.read(QLatin1String(path), bytes);
    pugi::xml_node node = ControllerXml::load(bytes, root, document);
    if (*group != '\0')
        node = node.child(group);
    if (!node)
        return false;
    for (const auto& [element, text] : texts) {
        pugi::xml_node child = node.child(element);
        if (!child)
            child = node.append_child(element);
        child.text().set(text.constData());
    }
    return m_parts.files.write(QLatin1String(path), ControllerXml::save(document));
}
