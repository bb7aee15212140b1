#include "FindingKinds.h"

#include <algorithm>

QString textOf(FindingCode code)
{
    return QLatin1String("FB") + QString::number(static_cast<int>(code));
}

const std::vector<FindingKind>& findingKinds()
{
    static const std::vector<FindingKind> all = [] {
        std::vector<FindingKind> kinds = FindingKinds::OfFilesAndRoles;
        kinds.insert(kinds.end(), FindingKinds::OfBusesAndLinks.begin(), FindingKinds::OfBusesAndLinks.end());
        return kinds;
    }();
    return all;
}

const FindingKind& kindOf(FindingCode code)
{
    const auto& kinds = findingKinds();
    return *std::lower_bound(kinds.begin(), kinds.end(), code,
                             [](const FindingKind& kind, FindingCode wanted) { return kind.code < wanted; });
}
