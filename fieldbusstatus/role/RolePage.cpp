#include "RolePage.h"

#include "ControllerWatch.h"
#include "RoleSections.h"

#include <QPushButton>
#include <QVBoxLayout>

namespace {
constexpr int TargetHeight = 48;
}

RolePage::RolePage(const StatusContext& pageContext)
    : StatusPage("RolePage", pageContext)
    , m_table(
          new RowTable("roleTable", tr("State and settings of the role"), {tr("What"), tr("Value")}, 1, this))
{
    m_table->setWidths({360, 0});
    auto* back = new QPushButton(tr("Back"), this);
    back->setObjectName(QStringLiteral("backBtn"));
    back->setAccessibleName(back->text());
    back->setMinimumHeight(TargetHeight);
    connect(back, &QPushButton::clicked, this, &RolePage::backWanted);
    contents()->addWidget(m_table, 1);
    contents()->addWidget(back, 0, Qt::AlignLeft);
}

void RolePage::setSubject(Subjects::Id subject)
{
    m_subject = subject;
    setTitle(Subjects::titleOf(subject));
    outdate();
}

void RolePage::showState()
{
    RowTable::Rows rows;
    for (const auto section : {RoleSections::state, RoleSections::findings, RoleSections::files,
                               RoleSections::devices, RoleSections::positions, RoleSections::settings}) {
        const RowTable::Rows part = section(watch(), m_subject);
        rows.insert(rows.end(), part.begin(), part.end());
    }
    m_table->show(rows);
}
