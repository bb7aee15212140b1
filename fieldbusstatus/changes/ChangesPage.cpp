#include "ChangesPage.h"

#include "BusFileDataManager.h"
#include "ControllerWatch.h"
#include "DataAccess.h"
#include "HistoryRecorder.h"
#include "StateText.h"
#include "SysSettingApi.h"
#include "TransferLock.h"
#include "WorkFolder.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QPointer>
#include <QPushButton>

#include <algorithm>
#include <optional>

using Act = FileVersion::Act;
using Answer = StatusBox::Answer;
using Result = PutBack::Result;

namespace {

constexpr std::size_t MostChanges = 100; // older ones are kept, and told by the history
constexpr int MostLines = 8;             // of a row
constexpr int MostListed = 8;            // files in a box
constexpr int RequiredUserLevel = 3;     // below it the application is closed
constexpr unsigned BeforeRestartMs = 1000;
constexpr unsigned BetweenRestartsMs = 100; // controller first, then the pendant

QString actText(Act act)
{
    switch (act) {
    case Act::Imported:
        return ChangesPage::tr("Import");
    case Act::ImportUndone:
        return ChangesPage::tr("Import undone");
    case Act::PutBack:
        return ChangesPage::tr("Put back");
    case Act::Saved:
        break;
    }
    return {};
}

QString listed(const QStringList& lines, int most)
{
    QStringList shown = lines.mid(0, most);
    if (lines.size() > most)
        shown << ChangesPage::tr("... and %1 more").arg(lines.size() - most);
    return shown.join(QLatin1Char('\n'));
}

QStringList namesOf(const FileChanges::Change& change)
{
    QStringList names;
    for (const FileVersion& version : change)
        names << FileChanges::nameOf(version);
    return names;
}

QString titleOf(const FileChanges::Change& change)
{
    const QString act = actText(change.front().act);
    const QString files = change.size() == 1
                              ? FileChanges::nameOf(change.front())
                              : ChangesPage::tr("%n file(s)", nullptr, static_cast<int>(change.size()));
    return act.isEmpty() ? files : act + QLatin1String(": ") + files;
}

QString reasonOf(Result result, const QString& file)
{
    switch (result) {
    case Result::Nothing:
        return ChangesPage::tr("The controller holds the former files already.");
    case Result::NotKept:
        return ChangesPage::tr("The former version of %1 can no longer be read.").arg(file);
    case Result::NotFetched:
        return ChangesPage::tr("The controller does not give %1.").arg(file);
    case Result::ChangedSince:
        return ChangesPage::tr("%1 was changed since: it stays as it is.").arg(file);
    case Result::RobotMoves:
        return ChangesPage::tr("Please turn off the servo first!");
    case Result::NoRoom:
        return ChangesPage::tr("The pendant cannot keep the present version of %1.").arg(file);
    case Result::NotArrived:
        return ChangesPage::tr("%1 did not arrive as it was sent.").arg(file);
    case Result::Done:
        break;
    }
    return {};
}

} // namespace

ChangesPage::ChangesPage(const StatusContext& pageContext)
    : StatusPage("ChangesPage", pageContext)
    , m_table(new RowTable("changesTable", tr("Changes"), {tr("Time"), tr("File"), tr("What was changed")}, 2,
                           this))
    , m_detail(new QLabel(this))
    , m_putBack(new QPushButton(tr("Put back"), this))
{
    setTitle(tr("Changes"));
    m_table->setWidths({210, 260, 0});
    connect(m_table, &RowTable::targetPressed, this, &ChangesPage::choose);
    m_detail->setObjectName(QStringLiteral("label_chosen"));
    m_detail->setWordWrap(true);
    m_putBack->setObjectName(QStringLiteral("putBackBtn"));
    m_putBack->setMinimumSize(160, 48);
    connect(m_putBack, &QPushButton::clicked, this, &ChangesPage::putBack);
    auto* row = new QHBoxLayout;
    row->setSpacing(16);
    row->addWidget(m_detail, 1);
    row->addWidget(m_putBack);
    contents()->addWidget(m_table, 1);
    contents()->addLayout(row);
}

int ChangesPage::version() const
{
    return context().history.version();
}

RowTable::Row ChangesPage::rowOf(const FileChanges::Change& change, int index) const
{
    const VersionStore store = FileChanges::store();
    QStringList lines;
    for (const FileVersion& version : change) {
        const QString prefix =
            change.size() == 1 ? QString() : FileChanges::nameOf(version) + QLatin1String(": ");
        for (const QString& line : FileChanges::wordsOf(store, version).lines)
            lines << prefix + line;
        if (lines.size() > MostLines)
            break;
    }
    if (lines.size() > MostLines)
        lines = lines.mid(0, MostLines) << QStringLiteral("...");
    return {{StateText::timeOf(change.front().time.toLocalTime()), titleOf(change),
             lines.join(QLatin1Char('\n'))},
            PutBack::isPossible(change) ? "information" : "outside",
            false,
            index};
}

void ChangesPage::showState()
{
    m_changes = FileChanges::grouped(FileChanges::store().versions());
    m_changes.resize(std::min(m_changes.size(), MostChanges));
    RowTable::Rows rows;
    for (const FileChanges::Change& change : m_changes)
        rows.push_back(rowOf(change, static_cast<int>(rows.size())));
    m_table->show(rows);
    showChosen();
}

void ChangesPage::choose(int index)
{
    m_chosen = m_changes[static_cast<std::size_t>(index)].front().group;
    showChosen();
}

const FileChanges::Change* ChangesPage::chosen() const
{
    const auto found =
        std::find_if(m_changes.begin(), m_changes.end(),
                     [this](const FileChanges::Change& change) { return change.front().group == m_chosen; });
    return found == m_changes.end() ? nullptr : &*found;
}

void ChangesPage::showChosen()
{
    const FileChanges::Change* change = chosen();
    const bool isPossible = change && PutBack::isPossible(*change);
    m_putBack->setEnabled(isPossible && !m_isBusy);
    if (!change)
        m_detail->setText(m_changes.empty() ? tr("This pendant has not changed any file so far.")
                                            : tr("Touch a change to choose it."));
    else if (isPossible)
        m_detail->setText(tr("Chosen: %1, %2")
                              .arg(titleOf(*change), StateText::timeOf(change->front().time.toLocalTime())));
    else
        m_detail->setText(
            tr("%1: it cannot be put back, as not all of it was kept or sent.").arg(titleOf(*change)));
}

bool ChangesPage::isRobotAtRest()
{
    if (PutBack::isRobotAtRest())
        return true;
    StatusBox::show(this, MsgBox::Warning, tr("Please turn off the servo first!"));
    return false;
}

void ChangesPage::putBack()
{
    const FileChanges::Change* picked = chosen();
    if (!picked || m_isBusy)
        return;
    const FileChanges::Change change = *picked;
    const QPointer<ChangesPage> self(this);
    m_isBusy = true;
    showChosen();
    putBackConfirmed(change);
    if (!self)
        return;
    m_isBusy = false;
    outdate();
    idle();
}

void ChangesPage::putBackConfirmed(const FileChanges::Change& change)
{
    const QPointer<ChangesPage> self(this);
    if (!isRobotAtRest())
        return;
    const QString question =
        tr("Put these files back as they were before %1?\n%2")
            .arg(change.front().time.toLocalTime().toString(QStringLiteral("yyyy-MM-dd HH:mm:ss")),
                 listed(namesOf(change), MostListed));
    if (StatusBox::show(this, MsgBox::Information, question, MsgBox::YesNo, true) != Answer::Confirmed ||
        !isRobotAtRest())
        return;
    // It may have dropped at the question, and the application is closed for that only when this has
    // returned.
    if (DataAccess::getUserLevel() < RequiredUserLevel)
        return;
    std::optional<TransferLock> lock(std::in_place);
    if (!lock->isHeld()) {
        StatusBox::showHeldUp(this);
        return;
    }
    PutBack work(FileChanges::store(), change, WorkFolder::path());
    Result result = work.look();
    // Nobody is there any more who wants it.
    if (!self || DataAccess::getUserLevel() < RequiredUserLevel)
        return;
    if (result == Result::Done)
        result = work.send();
    lock.reset();
    if (self)
        tellResult(result, work);
}

void ChangesPage::tellResult(Result result, const PutBack& work)
{
    const QPointer<ChangesPage> self(this);
    const bool needsRestart = work.needsRestart();
    if (!work.putBack().isEmpty())
        watch().refresh();
    if (result != Result::Done) {
        QString text = reasonOf(result, work.file());
        if (result != Result::Nothing)
            text +=
                QLatin1Char('\n') +
                (work.putBack().isEmpty()
                     ? tr("Nothing was put back.")
                     : tr("These files were put back before:\n%1").arg(listed(work.putBack(), MostListed)));
        StatusBox::show(this, result == Result::Nothing ? MsgBox::Information : MsgBox::Error, text);
    } else if (!needsRestart) {
        StatusBox::show(this, MsgBox::Information, tr("Save successfully."));
    }
    // Of what is half put back no restart is offered.
    if (self && result == Result::Done && needsRestart)
        offerRestart();
}

void ChangesPage::offerRestart()
{
    const Answer answer = StatusBox::show(
        this, MsgBox::Information, tr("Save successfully, Are you sure to restart robot to make it effect?"),
        MsgBox::OkCancel, true);
    if (answer != Answer::Confirmed || !BusFileDataManager::getInstance()->isRebootRde())
        return;
    SysSettingApi::delay_MSec(BeforeRestartMs);
    SysSettingApi::rebootRde(true, true);
    SysSettingApi::delay_MSec(BetweenRestartsMs);
    SysSettingApi::rebootTpu(true);
}
