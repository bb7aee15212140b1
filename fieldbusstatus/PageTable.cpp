#include "PageTable.h"

#include "FindingsPage.h"
#include "OverviewPage.h"

#include <QCoreApplication>

namespace PageTable {

namespace {

template <typename Page>
StatusPage* create(const StatusContext& context)
{
    return new Page(context);
}

} // namespace

const std::array<Entry, Count>& entries()
{
    static constexpr std::array<Entry, Count> table = {{
        {"overviewBtn", QT_TRANSLATE_NOOP("StatusMain", "Overview"), create<OverviewPage>},
        {"findingsBtn", QT_TRANSLATE_NOOP("StatusMain", "Findings"), create<FindingsPage>},
    }};
    return table;
}

} // namespace PageTable
