#include "FindingsPage.h"

#include "ControllerWatch.h"
#include "StateText.h"

#include <QLabel>
#include <QVBoxLayout>

namespace {

Subjects::Id subjectOf(const Finding& finding)
{
    for (Subjects::Id subject = 0; subject < Subjects::Count; ++subject) {
        if (Subjects::isAbout(finding, subject))
            return subject;
    }
    return Subjects::Controller;
}

} // namespace

FindingsPage::FindingsPage(const StatusContext& pageContext)
    : StatusPage("FindingsPage", pageContext)
    , m_count(new QLabel(this))
    , m_table(new RowTable("findingsTable", tr("Findings"),
                           {tr("Code"), tr("Role"), tr("Cause and what to do")}, 2, this))
{
    setTitle(tr("Findings"));
    m_count->setObjectName(QStringLiteral("label_count"));
    m_table->setWidths({130, 220, 0});
    connect(m_table, &RowTable::targetPressed, this, &StatusPage::subjectWanted);
    contents()->addWidget(m_count);
    contents()->addWidget(m_table, 1);
}

void FindingsPage::showState()
{
    RowTable::Rows rows;
    for (const Finding& finding : watch().findings()) {
        const Subjects::Id subject = subjectOf(finding);
        rows.push_back(
            {{finding.codeText(), Subjects::titleOf(subject),
              StateText::cause(finding) + QStringLiteral("\n\u2192 ") + StateText::nextStep(finding)},
             StateText::signOf(finding.severity),
             false,
             static_cast<int>(subject)});
    }
    const int count = static_cast<int>(rows.size());
    m_count->setText(count == 0 ? tr("Nothing was found.")
                                : tr("%n finding(s), the worst first", nullptr, count));
    m_table->show(rows);
}
