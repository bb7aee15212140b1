#ifndef OVERVIEWPAGE_H
#define OVERVIEWPAGE_H

#include "RowTable.h"
#include "StatusPage.h"

/// A row for each role and for what belongs to none: what is wanted, what runs, and how well.
class OverviewPage : public StatusPage
{
    Q_OBJECT

public:
    explicit OverviewPage(const StatusContext& context);

protected:
    void showState() override;

private:
    RowTable::Row rowOf(Subjects::Id subject) const;

    QLabel* m_pending;
    RowTable* m_table;
};

#endif
