#ifndef FINDING_H
#define FINDING_H

#include "FindingCodes.h"
#include "KnownFiles.h"
#include "MarkedText.h"
#include "RoleTable.h"

#include <optional>
#include <vector>

/// A fact that a finding rests on: what it is called, where it stands, and what it is there.
struct Evidence
{
    QString fact;   ///< "IPADDR"
    QString source; ///< name of a file in an export folder, or of a controller variable
    QString value;  ///< as it stands there
};

/// Something that is wrong, doubtful or worth knowing about a controller's configuration.
struct Finding
{
    FindingCode code;
    FindingSeverity severity; ///< as the catalogue says, and information at most for a role that is off
    std::optional<RoleId> role;
    std::optional<FileId> file;
    int line = 0; ///< in the file, 1 the first; 0 where no line is meant
    MarkedText cause;
    std::vector<Evidence> evidence;
    MarkedText next; ///< a step that a person can take

    QString codeText() const { return textOf(code); } ///< "FB101"
};

using Findings = std::vector<Finding>;

#endif
