#include "ForeignLines.h"

#include "AsciiText.h"
#include "KeptXml.h"
#include "KnownFiles.h"
#include "SettingReaders.h"
#include "TextTemplate.h"

#include <QHash>
#include <QRegularExpression>

namespace {

// No configuration nests deeper; a file that does must not make places that grow with its depth.
constexpr int DeepestPlace = 16;

// The attribute that tells elements of one tag apart.
QString keyOf(const pugi::xml_node& element)
{
    for (const char* attribute : {"name", "direction", "type", "number", "index"}) {
        if (const pugi::xml_attribute key = element.attribute(attribute))
            return QLatin1Char('[') + KeptXml::text(key) + QLatin1Char(']');
    }
    return {};
}

class Places
{
public:
    explicit Places(const Settings::Row* known)
    {
        if (known)
            m_known.setPattern(QRegularExpression::anchoredPattern(QLatin1String(known->knownPlaces)));
        m_hidesKnown = known != nullptr;
    }

    QStringList of(const pugi::xml_document& document)
    {
        visitChildren(document, {}, 0);
        return m_lines;
    }

private:
    void visitChildren(const pugi::xml_node& parent, const QString& place, int depth)
    {
        QHash<QString, int> seen;
        for (const pugi::xml_node node : parent.children()) {
            if (node.type() == pugi::node_element) {
                QString name = QString::fromUtf8(node.name()) + keyOf(node);
                const int count = ++seen[name];
                // A second one of a name is another place, which no reader looks at.
                if (count > 1)
                    name += QStringLiteral("#%1").arg(count);
                visit(node, place.isEmpty() ? name : place + QLatin1Char('/') + name, depth + 1);
            } else if (node.type() == pugi::node_pcdata || node.type() == pugi::node_cdata) {
                add(place, QString::fromUtf8(node.value()).simplified());
            }
        }
    }

    void visit(const pugi::xml_node& element, const QString& place, int depth)
    {
        for (const pugi::xml_attribute attribute : element.attributes())
            add(place + QLatin1Char('@') + QString::fromUtf8(attribute.name()), KeptXml::text(attribute));
        if (!element.first_child() && !element.first_attribute())
            add(place, {});
        if (depth < DeepestPlace)
            visitChildren(element, place, depth);
        else if (element.first_child())
            add(place, QStringLiteral("..."));
    }

    void add(const QString& place, const QString& value)
    {
        if (!m_hidesKnown || !m_known.match(place).hasMatch())
            m_lines << place + QLatin1String(": ") + value;
    }

    QRegularExpression m_known;
    bool m_hidesKnown = false;
    QStringList m_lines;
};

QStringList textLines(const QByteArray& bytes, const Settings::Row* known)
{
    QStringList lines;
    TextTemplate::forEachLine(bytes, [&](std::string_view whole, std::string_view) {
        const std::string_view line = AsciiText::trimmed(whole);
        const bool isKnown = known && known->knowsLine && !line.empty() && known->knowsLine(line);
        if (!line.empty() && !isKnown)
            lines << (AsciiText::isUtf8(line) ? QString::fromUtf8(line.data(), static_cast<int>(line.size()))
                                              : AsciiText::text(line));
        return true;
    });
    return lines;
}

} // namespace

QStringList ForeignLines::of(const QString& path, const QByteArray& bytes, const Settings::Row* known)
{
    pugi::xml_document document;
    const KnownFile* file = KnownFiles::named(path);
    const bool isXml = file ? file->root != nullptr : path.endsWith(QLatin1String(".xml"));
    // The parser would take a NUL for the end, and what stands behind it would be no difference.
    const bool isWhole = AsciiText::view(bytes).find('\0') == std::string_view::npos;
    if (isXml && isWhole &&
        document.load_buffer(bytes.constData(), static_cast<std::size_t>(bytes.size()), pugi::parse_default,
                             pugi::encoding_utf8))
        return Places(known && known->knownPlaces ? known : nullptr).of(document);
    return textLines(bytes, known);
}
