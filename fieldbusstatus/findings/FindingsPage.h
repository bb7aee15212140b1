#ifndef FINDINGSPAGE_H
#define FINDINGSPAGE_H

#include "RowTable.h"
#include "StatusPage.h"

/// What is wrong with all roles, the worst first.
class FindingsPage : public StatusPage
{
    Q_OBJECT

public:
    explicit FindingsPage(const StatusContext& context);

protected:
    void showState() override;

private:
    QLabel* m_count;
    RowTable* m_table;
};

#endif
