#ifndef HISTORYPAGE_H
#define HISTORYPAGE_H

#include "RowTable.h"
#include "StatusEvent.h"
#include "StatusPage.h"

class QComboBox;
class QLabel;

/// What happened, the newest first, of all roles or of one; beside it how long the longest loss of a link
/// was, and how long the watch of the role waits.
class HistoryPage : public StatusPage
{
    Q_OBJECT

public:
    explicit HistoryPage(const StatusContext& context);

protected:
    void showState() override;
    int version() const override;

private:
    std::optional<RoleId> chosenRole() const;
    QString longestText(RoleId role) const;

    QComboBox* m_filter;
    QLabel* m_longest;
    RowTable* m_table;
    std::vector<StatusEvent> m_events; ///< as they were at `m_readVersion` of the history
    int m_readVersion = -1;
};

#endif
