#ifndef SETTINGCHANGES_H
#define SETTINGCHANGES_H

#include "Settings.h"

/// What differs between two states of a file, field by field where it is understood and line by line where it
/// is not.
namespace Settings {

struct Change
{
    enum class Kind {
        Field, ///< a setting; `field`, `before` and `after` are its own
        Line,  ///< a line that no field tells: only `before` (it is gone) or only `after` (it is new)
        File   ///< the file as a whole: missing, damaged, or different in what is not looked at
    };

    Kind kind;
    QString path;         ///< the name in KnownFiles
    const RoleInfo* role; ///< null when it is of no role
    QString title;        ///< of the group; the path without one
    QString field;
    QString before;
    QString after;
    bool isAddress = false;
};

/// The changes from `before` to `after`; null bytes stand for a file that is missing. Order, white space and
/// the comments of XML files are no difference.
std::vector<Change> changes(const QString& path, const QByteArray& before, const QByteArray& after);

/// A change, or the changes of one group, in a sentence.
struct Sentence
{
    QString title;
    QString text; ///< "IP address 192.168.2.22 -> 192.168.2.30, byte order ..."
    Change::Kind kind;
};

/// Addresses that move because quantities changed are told as that.
std::vector<Sentence> inWords(const std::vector<Change>& changes);

} // namespace Settings

#endif
