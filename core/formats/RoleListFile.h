#ifndef ROLELISTFILE_H
#define ROLELISTFILE_H

#include <QByteArray>
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
/// untouched) when `content` is no XML or has another root.
bool read(const QByteArray& content, std::vector<ListedRole>& roles);

/// The file with `role` switched off, and every other byte as it is. Empty when `read` would refuse it.
QByteArray switchedOff(QByteArray content, const QString& role);

} // namespace RoleListFile

#endif
