#ifndef XMLRECORD_H
#define XMLRECORD_H

#include "XmlFile.h"

#include <algorithm>
#include <initializer_list>
#include <iterator>
#include <type_traits>
#include <variant>

/// Formats whose elements each hold one value of a record. A format is a table of fields that its reader and
/// its writer both walk.
namespace XmlRecord {

/// An element and the member that it carries: text as it stands, a whole number (decimal or 0x, 0 for what is
/// none, the nearest value for what is beyond 32 bits), or a flag ("1", "t", "y" to begin with is true).
template <typename Record>
struct Field
{
    const char* element;
    std::variant<QString Record::*, int Record::*, bool Record::*> member;
};

/// Whether a record keeps how its numbers were spelled: it has a `KeptNumbers kept`.
template <typename Record, typename = void>
struct KeepsNumbers : std::false_type
{
};
template <typename Record>
struct KeepsNumbers<Record, std::void_t<decltype(Record::kept)>> : std::true_type
{
};

inline void readValue(pugi::xml_node element, QString& value)
{
    value = XmlFile::text(element);
}
inline void readValue(pugi::xml_node element, int& value)
{
    value = element.text().as_int();
}
inline void readValue(pugi::xml_node element, bool& value)
{
    value = element.text().as_bool();
}

inline QString writtenValue(const QString& value)
{
    return value;
}
inline QString writtenValue(int value)
{
    return QString::number(value);
}
inline QString writtenValue(bool value)
{
    return value ? QStringLiteral("1") : QStringLiteral("0");
}

// A record that keeps how its numbers are spelled.
template <typename Record>
void note(Record& record, const Field<Record>& field, pugi::xml_node element)
{
    const auto* number = std::get_if<int Record::*>(&field.member);
    if (number && element)
        record.kept.note(field.element, element.text().get(), record.**number);
}

/// Reads the children of `parent` that `fields` name. A missing one leaves nothing of an earlier value.
template <typename Record, typename Fields>
void read(pugi::xml_node parent, const Fields& fields, Record& record)
{
    if constexpr (KeepsNumbers<Record>::value)
        record.kept.clear();
    for (const Field<Record>& field : fields) {
        const pugi::xml_node element = parent.child(field.element);
        std::visit([&](auto member) { readValue(element, record.*member); }, field.member);
        if constexpr (KeepsNumbers<Record>::value)
            note(record, field, element);
    }
}

/// Appends a child of `parent` for each of `fields`.
template <typename Record, typename Fields>
void append(pugi::xml_node parent, const Fields& fields, const Record& record)
{
    for (const Field<Record>& field : fields) {
        if constexpr (KeepsNumbers<Record>::value) {
            if (const auto* number = std::get_if<int Record::*>(&field.member)) {
                const QByteArray word = record.kept.written(field.element, record.**number);
                XmlFile::appendText(parent, field.element, QString::fromUtf8(word));
                continue;
            }
        }
        std::visit(
            [&](auto member) { XmlFile::appendText(parent, field.element, writtenValue(record.*member)); },
            field.member);
    }
}

/// Names of the nested elements, from the root on, that hold the fields of a format.
using Place = std::initializer_list<const char*>;

inline pugi::xml_node nodeAt(const pugi::xml_document& document, Place place)
{
    pugi::xml_node node = document;
    for (const char* element : place)
        node = node.child(element);
    return node;
}

/// Reads a file; false, and the record as it was, when it is no XML. `recognised`: whether any of `fields` is
/// there.
template <typename Record, typename Fields>
bool read(const QByteArray& content, Place place, const Fields& fields, Record& record, bool* recognised)
{
    pugi::xml_document document;
    if (!XmlFile::load(content, document))
        return false;
    const pugi::xml_node node = nodeAt(document, place);
    read(node, fields, record);
    if (recognised)
        *recognised = std::any_of(std::begin(fields), std::end(fields), [node](const Field<Record>& field) {
            return !node.child(field.element).empty();
        });
    return true;
}

/// A new file with the fields, and nothing else.
template <typename Record, typename Fields>
QByteArray written(Place place, const Fields& fields, const Record& record)
{
    pugi::xml_document document;
    XmlFile::appendPrologue(document);
    pugi::xml_node node = document;
    for (const char* element : place)
        node = node.append_child(element);
    append(node, fields, record);
    return XmlFile::bytes(document);
}

} // namespace XmlRecord

#endif
