#ifndef HOST_BUSCONFIGFILE_H
#define HOST_BUSCONFIGFILE_H

#include "BusFileData.h"

#include <QByteArray>
#include <QMap>

#include <vector>

/// What "fieldbus.xml" says: which bus roles the controller has, and which of them are switched on.
/// Everything else in the file survives a write.
class BusConfigFile
{
public:
    /// Takes a file over; false leaves what was there.
    bool parse(const QByteArray& bytes);
    /// The file with the roles as they are now; empty when no file was taken over.
    QByteArray toBytes() const;

    /// In file order. Of two entries with one name the first counts.
    const std::vector<BusName>& roles() const { return m_roles; }
    bool isEnabled(const QString& role) const;
    /// Takes the roles that the file has over, by name.
    void setRoles(const QMap<QString, BusName>& roles);
    /// Back to the file that was taken over last.
    void revert() { parse(QByteArray(m_source)); }

private:
    QByteArray m_source;
    std::vector<BusName> m_roles;
};

#endif
