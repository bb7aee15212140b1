// The road of a page: how it is loaded, when it is loaded again, and what must hold before it is saved.
#include "PageBase.h"

#include "ControllerCopies.h"
#include "PageHead.h"
#include "ServiceFiles.h"

#include <QAbstractButton>

#include <algorithm>

Outcome PageBase::fetch()
{
    Outcome outcome = Outcome::Done;
    for (const PageFile& file : files()) {
        const Outcome read = fetchAndRead(file.file, file.read, file.texts);
        if (read == Outcome::Gone)
            return read;
        // A file that holds nothing of what belongs into it was read without a fault; whoever wants to save
        // is told.
        const bool isOfService = FileLocations::of(file.file).isOfService();
        const bool isFilled =
            read == Outcome::Done && (isOfService || ControllerCopies::instance().isRead(file.file));
        if (isOfService && isFilled && ServiceFiles::readAt(file.file).isValid())
            m_readAt = qMin(m_readAt, ServiceFiles::readAt(file.file));
        if (read == Outcome::Done && !isFilled && isAskedFor() && sayUnread(file) == Outcome::Gone)
            return Outcome::Gone;
        if (!isFilled)
            outcome = Outcome::Failed;
    }
    return outcome;
}

Outcome PageBase::load(Input input)
{
    if (m_loading)
        return Outcome::Failed;
    m_loading = true;
    std::optional<Busy> busy;
    if (input == Input::Blocked)
        busy.emplace(this);
    beginLoad();
    std::vector<ConfigFile> names;
    for (const PageFile& file : files())
        names.push_back(file.file);
    m_provenance.begin(names);
    m_readAt = QDateTime::currentDateTime();
    const Outcome outcome = fetch();
    if (outcome == Outcome::Gone)
        return outcome;
    m_loading = false;
    m_provenance.end(outcome == Outcome::Done, m_readAt);
    if (outcome == Outcome::Done || !isAskedFor() || !isUsableUnread()) {
        m_edits.pause();
        fill();
        m_edits.settle();
    }
    if (m_head)
        m_head->showProvenance(showsFiles() ? m_provenance : Provenance());
    return outcome;
}

void PageBase::refill()
{
    m_edits.pause();
    fill();
    m_edits.resume();
}

PageBase::PageFile PageBase::heldByService(ConfigFile file, const TransferTexts& texts)
{
    const auto read = [file](const QString&) {
        return ServiceFiles::isCurrent(file) || ServiceFiles::read(file);
    };
    return {file, read, texts};
}

// A file of the service that was read anew for somebody else, or could not be.
bool PageBase::holdsService() const
{
    const std::vector<ConfigFile> sources = m_provenance.files();
    return std::all_of(sources.begin(), sources.end(), [](ConfigFile file) {
        return !ServiceFiles::keeps(file) || ServiceFiles::isCurrent(file);
    });
}

bool PageBase::isReadyToSave()
{
    if (m_loading)
        return false;
    if (m_provenance.state() != Provenance::State::Read || !holdsService()) {
        m_isAskedFor = true;
        const Outcome loaded = load();
        if (loaded == Outcome::Gone)
            return false;
        m_isAskedFor = false;
        if (loaded == Outcome::Done)
            tell(MsgBox::Information,
                 translated(QT_TRANSLATE_NOOP("PageBase", "Loaded now. Look at the settings, then save.")));
        if (loaded == Outcome::Done || !isUsableUnread())
            return false;
    } else if (m_provenance.isOutdated()) {
        catchUp();
        return false;
    }
    m_unsent = m_provenance.files();
    return true;
}

// The record is not the file's any more: it is loaded again, with what was entered gone.
Outcome PageBase::giveWay()
{
    const Outcome loaded = load();
    if (loaded == Outcome::Gone)
        return loaded;
    const Answer told =
        loaded == Outcome::Done
            ? tell(MsgBox::Warning, tr("override.cfg was changed on the controller since it was "
                                       "read. It has been loaded again."))
            : Answer::Confirmed;
    return told == Answer::Gone ? Outcome::Gone : Outcome::Failed;
}

void PageBase::noteSent(ConfigFile file)
{
    m_unsent.erase(std::remove(m_unsent.begin(), m_unsent.end(), file), m_unsent.end());
    if (m_unsent.empty())
        m_edits.settle();
}

// Input is blocked from here on, so that nothing is entered before the page has caught up.
void PageBase::showEvent(QShowEvent* event)
{
    QWidget::showEvent(event);
    if (m_loading || m_catchingUp || isAtWork() || !m_provenance.isOutdated())
        return;
    m_catchingUp.emplace(this);
    scheduleOnce(0, &PageBase::catchUpWhenShown);
}

void PageBase::catchUpWhenShown()
{
    const QPointer<PageBase> self(this);
    // One that was left meanwhile catches up when it is shown again.
    if (isVisible())
        catchUp();
    if (self)
        m_catchingUp.reset();
}

void PageBase::catchUp()
{
    if (!m_provenance.isOutdated())
        return;
    const Answer answer = isEdited() ? askReload() : Answer::Confirmed;
    if (answer == Answer::Confirmed)
        load();
    else if (answer != Answer::Gone)
        m_provenance.acceptAll();
}

// The buttons say what they do where the host's box lets them.
PageBase::Answer PageBase::askReload()
{
    const QString captions[] = {tr("Reload"), tr("Keep")};
    auto* box =
        new MsgBox(MsgBox::Warning, tr("Changed on the controller since it was read"), this, MsgBox::YesNo);
    const QList<QAbstractButton*> buttons = box->findChildren<QAbstractButton*>();
    if (buttons.size() == static_cast<int>(std::size(captions))) {
        for (int index = 0; index < buttons.size(); ++index)
            buttons[index]->setText(captions[index]);
        return runBox(box);
    }
    delete box;
    return ask(tr("Changed on the controller since it was read. Reload?"), MsgBox::YesNo);
}
