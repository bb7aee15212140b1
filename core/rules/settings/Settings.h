#ifndef SETTINGS_H
#define SETTINGS_H

#include "RoleTable.h"

#include <QByteArray>
#include <QString>
#include <QStringList>

#include <vector>

/// What a file of a bus configuration sets, in words that a person knows it by: the same for whoever shows
/// it, compares two of it, or tells what a send has changed.
namespace Settings {

struct Field
{
    QString name;           ///< translated: "IP address"; told apart within its group
    QString value;          ///< as people write it, with its unit; empty: not set
    bool isAddress = false; ///< follows from quantities when it is laid out anew
};

/// Settings that belong together: of a role, or a table of the mapping.
struct Group
{
    QString title;          ///< translated: "EtherNet/IP slave", "mapping PROFINET slave, free, read only"
    const RoleInfo* role;   ///< null when it is of no role, or of one that is not known
    bool isMapping = false; ///< rows of the I/O mapping: quantities and addresses
    std::vector<Field> fields;
};

/// A file as a whole.
struct Content
{
    /// Whether the file is what its name says. A file that is not has no groups, and all its lines in
    /// `others`.
    bool isUnderstood = false;
    std::vector<Group> groups;
    /// What no field tells: a line each of a text file; of an XML file "place: value" without comments.
    QStringList others;
};

/// `path` the name in KnownFiles; a file that no reader knows is all others.
Content of(const QString& path, const QByteArray& bytes);

/// The groups alone, which costs less; nothing of a file that is not understood.
std::vector<Group> groupsOf(const QString& path, const QByteArray& bytes);

} // namespace Settings

#endif
