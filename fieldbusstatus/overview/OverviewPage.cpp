#include "OverviewPage.h"

#include "ControllerWatch.h"
#include "StateText.h"

#include <QLabel>
#include <QVBoxLayout>

OverviewPage::OverviewPage(const StatusContext& pageContext)
    : StatusPage("OverviewPage", pageContext)
    , m_pending(new QLabel(this))
    , m_table(new RowTable("overviewTable", tr("State of the roles"),
                           {tr("State"), tr("Role"), tr("Switched\non"), tr("Runs\nnow"), tr("Link"),
                            tr("Since"), tr("Findings")},
                           1, this))
{
    setTitle(tr("What runs"));
    m_pending->setObjectName(QStringLiteral("label_pending"));
    m_pending->setWordWrap(true);
    m_pending->hide();
    m_table->setWidths({236, 0, 110, 84, 84, 106, 106});
    connect(m_table, &RowTable::targetPressed, this, &StatusPage::subjectWanted);
    contents()->addWidget(m_pending);
    contents()->addWidget(m_table, 1);
}

void OverviewPage::showState()
{
    RowTable::Rows rows;
    QStringList pending;
    for (Subjects::Id subject = 0; subject < Subjects::Count; ++subject) {
        rows.push_back(rowOf(subject));
        if (watch().subject(subject).isRestartPending)
            pending << Subjects::titleOf(subject);
    }
    m_table->show(rows);
    m_pending->setText(tr("Saved, runs after the next restart: %1").arg(pending.join(QStringLiteral(", "))));
    m_pending->setVisible(!pending.isEmpty());
}

RowTable::Row OverviewPage::rowOf(Subjects::Id subject) const
{
    const Subjects::State& state = watch().subject(subject);
    const auto role = Subjects::roleOf(subject);
    const bool hasLink = role && RoleTable::of(*role).linkVariable && state.isRunning.value_or(false);
    const QString link = !hasLink ? QString() : state.isLinked.value_or(false) ? tr("up") : tr("down");
    return {{StateText::of(state.health), Subjects::titleOf(subject), StateText::yesNo(state.isSwitchedOn),
             role ? StateText::yesNo(state.isRunning) : QString(), link, StateText::timeOf(state.since),
             state.findings == 0 ? QString() : QString::number(state.findings)},
            StateText::signOf(state.health),
            false,
            static_cast<int>(subject)};
}
