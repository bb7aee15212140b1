#include "HistoryPage.h"

#include "ControllerWatch.h"
#include "HistoryRecorder.h"
#include "StateText.h"

#include <QComboBox>
#include <QHBoxLayout>
#include <QLabel>

#include <algorithm>

namespace {

constexpr std::size_t MostRows = 300; // older ones are in the support bundle
constexpr double MsPerSecond = 1000.0;
constexpr int MostWords = 6; // lines of a row

using Kind = StatusEvent::Kind;

QString seconds(qint64 ms)
{
    return HistoryPage::tr("%1 s").arg(static_cast<double>(ms) / MsPerSecond, 0, 'f', ms < 10000 ? 1 : 0);
}

const char* signOf(const StatusEvent& event)
{
    switch (event.kind) {
    case Kind::ControllerLost:
    case Kind::LinkLost:
    case Kind::Refused:
        return "failed";
    case Kind::ControllerBack:
    case Kind::LinkBack:
        return "good";
    case Kind::Started:
    case Kind::Sent:
        break;
    }
    return "information";
}

QString ended(const QString& text, qint64 ms)
{
    return ms < 0 ? text : HistoryPage::tr("%1 after %2").arg(text, seconds(ms));
}

QString textOf(const StatusEvent& event)
{
    switch (event.kind) {
    case Kind::Started:
        return HistoryPage::tr("The pendant was started");
    case Kind::ControllerLost:
        return HistoryPage::tr("The controller does not answer: it restarts, or its cable is out");
    case Kind::ControllerBack:
        return ended(HistoryPage::tr("The controller is back"), event.lengthMs);
    case Kind::LinkLost:
        return HistoryPage::tr("Link lost");
    case Kind::LinkBack:
        return ended(HistoryPage::tr("Link back"), event.lengthMs);
    case Kind::Refused:
        return HistoryPage::tr("The controller refused %1").arg(event.subject);
    case Kind::Sent:
        break;
    }
    QStringList words = event.words.mid(0, MostWords);
    if (event.words.size() > words.size())
        words << HistoryPage::tr("... and %1 more").arg(event.words.size() - words.size());
    return HistoryPage::tr("%1 was sent").arg(event.subject) + QLatin1Char('\n') +
           words.join(QLatin1Char('\n'));
}

} // namespace

HistoryPage::HistoryPage(const StatusContext& pageContext)
    : StatusPage("HistoryPage", pageContext)
    , m_filter(new QComboBox(this))
    , m_longest(new QLabel(this))
    , m_table(
          new RowTable("historyTable", tr("History"), {tr("Time"), tr("Role"), tr("What happened")}, 2, this))
{
    setTitle(tr("History"));
    m_filter->setObjectName(QStringLiteral("roleFilter"));
    m_filter->setAccessibleName(tr("Role"));
    m_filter->setMinimumHeight(48);
    m_filter->setMinimumWidth(300);
    m_filter->addItem(tr("All roles"), -1);
    for (const RoleInfo& role : RoleTable::Roles)
        m_filter->addItem(QLatin1String(role.title), static_cast<int>(role.id));
    connect(m_filter, QOverload<int>::of(&QComboBox::currentIndexChanged), this, [this] {
        outdate();
        idle();
    });
    m_longest->setObjectName(QStringLiteral("label_longest"));
    m_longest->setWordWrap(true);
    auto* row = new QHBoxLayout;
    row->setSpacing(16);
    row->addWidget(m_filter);
    row->addWidget(m_longest, 1);
    m_table->setWidths({210, 220, 0});
    contents()->addLayout(row);
    contents()->addWidget(m_table, 1);
}

int HistoryPage::version() const
{
    // Both only rise.
    return context().history.version() + watch().version();
}

std::optional<RoleId> HistoryPage::chosenRole() const
{
    const int role = m_filter->currentData().toInt();
    return role < 0 ? std::nullopt : std::optional<RoleId>(static_cast<RoleId>(role));
}

QString HistoryPage::longestText(RoleId role) const
{
    qint64 longest = -1;
    for (const StatusEvent& event : m_events) {
        if (event.kind == Kind::LinkBack && event.role == role)
            longest = std::max(longest, event.lengthMs);
    }
    const QString loss = longest < 0 ? tr("No loss of the link that has ended.")
                                     : tr("Longest loss: %1.").arg(seconds(longest));
    const HeartbeatConfig& heartbeat = watch().configuration().heartbeat;
    for (const HeartbeatConfig::Field& field : HeartbeatConfig::fields()) {
        const char* key = RoleTable::of(role).heartbeatKey;
        if (key && qstrcmp(field.bus, key) == 0)
            return loss + QLatin1Char(' ') +
                   (heartbeat.*field.nodSwitch
                        ? tr("The watch trips after %1 s.")
                              .arg(HeartbeatConfig::timeoutText(heartbeat.*field.timeout))
                        : tr("The link is not watched."));
    }
    return loss;
}

void HistoryPage::showState()
{
    if (m_readVersion != context().history.version()) {
        m_readVersion = context().history.version();
        m_events = context().history.events();
    }
    const std::optional<RoleId> only = chosenRole();
    RowTable::Rows rows;
    for (auto event = m_events.rbegin(); event != m_events.rend() && rows.size() < MostRows; ++event) {
        if (only && event->role != only)
            continue;
        rows.push_back(
            {{StateText::timeOf(event->time.toLocalTime()),
              event->role ? QLatin1String(RoleTable::of(*event->role).title) : QString(), textOf(*event)},
             signOf(*event)});
    }
    m_longest->setText(only ? longestText(*only) : QString());
    m_table->show(rows);
}
