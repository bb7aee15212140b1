#ifndef ROLEPAGE_H
#define ROLEPAGE_H

#include "RowTable.h"
#include "StatusPage.h"

/// One role in full: what is wrong with it and why, its settings, and what comes of them.
class RolePage : public StatusPage
{
    Q_OBJECT

public:
    explicit RolePage(const StatusContext& context);

    void setSubject(Subjects::Id subject);

signals:
    void backWanted();

protected:
    void showState() override;

private:
    Subjects::Id m_subject = 0;
    RowTable* m_table;
};

#endif
