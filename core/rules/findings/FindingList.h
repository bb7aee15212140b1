#ifndef FINDINGLIST_H
#define FINDINGLIST_H

#include "Configuration.h"
#include "Finding.h"

#include <initializer_list>

/// Where the rules put what they find.
class FindingList
{
public:
    explicit FindingList(const Configuration& configuration)
        : m_configuration(configuration)
    {
    }

    /// What a finding is about. Its line, when none is given, is the last one that `at` leads to: each text
    /// is looked for behind the one before.
    struct About
    {
        std::optional<RoleId> role;
        std::optional<FileId> file;
        std::vector<QByteArray> at = {};
    };
    void add(FindingCode code, const About& about, const QStringList& arguments,
             std::vector<Evidence> evidence, int line = 0);

    /// Whether there is an error or a warning for `role` so far.
    bool hasTrouble(RoleId role) const;

    /// Errors first, each in the order of the rules.
    Findings sorted();

    static Evidence fact(const QString& name, FileId file, const QString& value);
    static Evidence fact(const QString& name, FileId file, int value);
    static Evidence fact(const QString& name, const QString& variable, const QString& value);
    /// Whether a role is on, from fieldbus.xml.
    Evidence factOf(RoleId role) const;

private:
    int lineOf(const About& about) const;

    const Configuration& m_configuration;
    Findings m_findings;
};

/// Title of a role.
inline QString titleOf(RoleId role)
{
    return QLatin1String(RoleTable::of(role).title);
}

#endif
