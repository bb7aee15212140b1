#ifndef ROLELISTFILE_H
#define ROLELISTFILE_H

#include <QByteArray>
#include <QString>

#include <vector>

namespace pugi {
class xml_document;
}

/// A bus role as the controller's fieldbus.xml lists it.
struct ListedRole
{
    QString name;
    bool on = false;
};

/// fieldbus.xml: the roles that the controller has, and which of them are switched on.
namespace RoleListFile {

/// The entry that is no bus: on selects the free mode of the mapping, else the fixed one.
constexpr const char* FreeBus = "FreeBus";

/// The roles in file order; of two entries with one name the first counts. False (and `roles` untouched) when
/// the bytes are not well-formed or have another root.
bool read(const QByteArray& bytes, std::vector<ListedRole>& roles);
/// From a document that is parsed already.
bool readFrom(const pugi::xml_document& document, std::vector<ListedRole>& roles);

/// Whether `name` is listed and on.
bool isOn(const std::vector<ListedRole>& roles, const QString& name);

/// The file with every entry of `role` off and every other byte as it was; null when it cannot be read.
QByteArray switchedOff(const QByteArray& bytes, const QString& role);

} // namespace RoleListFile

#endif
