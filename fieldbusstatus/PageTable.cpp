#include "PageTable.h"

#include "ChangesPage.h"
#include "FindingsPage.h"
#include "HistoryPage.h"
#include "OverviewPage.h"
#include "SupportPage.h"

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
        {"historyBtn", QT_TRANSLATE_NOOP("StatusMain", "History"), create<HistoryPage>},
        {"changesBtn", QT_TRANSLATE_NOOP("StatusMain", "Changes"), create<ChangesPage>},
        {"supportBtn", QT_TRANSLATE_NOOP("StatusMain", "Support"), create<SupportPage>},
    }};
    return table;
}

} // namespace PageTable
