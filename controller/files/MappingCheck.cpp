#include "MappingCheck.h"

#include "ControllerXml.h"

namespace {

// The largest quantity of each type that any bus carries, in either mode. Laxer than the page, which knows the limits
// of each bus, direction and mode.
constexpr struct
{
    const char* type;
    quint32 maximum;
} Limits[] = {{"Bool", 2048}, {"Int", 128}, {"Float", 64}};

constexpr const char* RowKinds[] = {"User", "System"};

bool isNumber(const pugi::xml_attribute& attribute, quint32& number)
{
    bool ok = false;
    number = QByteArray(attribute.value()).toUInt(&ok);
    return ok;
}

// A start and an end stand together or not at all, and in this order.
bool areAddressesSane(const pugi::xml_node& node)
{
    const pugi::xml_attribute start = node.attribute("start");
    const pugi::xml_attribute end = node.attribute("end");
    if (!start && !end)
        return true;
    quint32 first = 0;
    quint32 last = 0;
    // An empty block that holds a place ends one before its start.
    return isNumber(start, first) && isNumber(end, last) && quint64(first) <= quint64(last) + 1;
}

QString rowFault(const pugi::xml_node& row)
{
    for (const auto& limit : Limits) {
        quint32 quantity = 0;
        if (qstrcmp(row.attribute("type").value(), limit.type) == 0)
            return isNumber(row.attribute("quantity"), quantity) && quantity <= limit.maximum &&
                           areAddressesSane(row)
                       ? QString()
                       : QStringLiteral("%1 quantity or address").arg(QLatin1String(limit.type));
    }
    return QStringLiteral("type");
}

QString areaFault(const pugi::xml_node& area)
{
    if (!areAddressesSane(area))
        return QStringLiteral("block address");
    for (const char* kind : RowKinds) {
        for (const pugi::xml_node& row : area.children(kind)) {
            QString fault = rowFault(row);
            if (!fault.isEmpty())
                return fault;
        }
    }
    return {};
}

} // namespace

QString mappingFault(const QByteArray& bytes)
{
    pugi::xml_document document;
    const pugi::xml_node root = ControllerXml::load(bytes, "FieldbusConfig", document);
    if (!root)
        return document.first_child() ? QStringLiteral("another root") : QStringLiteral("not well-formed");
    for (const pugi::xml_node& mode : root.children("Mode")) {
        for (const pugi::xml_node& bus : mode.children("Bus")) {
            for (const pugi::xml_node& area : bus.children("Area")) {
                const QString fault = areaFault(area);
                if (!fault.isEmpty())
                    return QStringLiteral("%1 %2 %3: %4")
                        .arg(QLatin1String(mode.attribute("name").value()),
                             QLatin1String(bus.attribute("name").value()),
                             QLatin1String(area.attribute("direction").value()), fault);
            }
        }
    }
    return {};
}
