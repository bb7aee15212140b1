#ifndef ROLELISTFILE_H
#define ROLELISTFILE_H

#include <QString>

#include <vector>

/// A bus role as the controller's fieldbus.xml lists it.
struct ListedRole
{
    QString name;
    bool on = false;
};

/// A copy of fieldbus.xml that is about to be imported. The controller's own one belongs to the bus file data
/// service, which reads and writes it.
namespace RoleListFile {

/// Reads the roles in file order; of two entries with one name the first counts. False (and `roles`
/// untouched) when the file cannot be read or has another root.
bool read(const QString& path, std::vector<ListedRole>& roles);

/// Switches `role` off; everything else of the file stays. False when the file cannot be read or written.
bool switchOff(const QString& path, const QString& role);

} // namespace RoleListFile

#endif
