#include "PageBase.h"

#include "ControllerCopies.h"
#include "DataAccess.h"
#include "FitCaption.h"
#include "PageHead.h"
#include "ServiceFiles.h"
#include "TouchCheckBox.h"
#include "ZelFunctions.h"

#include <QCoreApplication>
#include <QHeaderView>
#include <QLabel>
#include <QTableWidget>

namespace {

QString fileName(ConfigFile file)
{
    return FileLocations::of(file).controller.section(QLatin1Char('/'), -1);
}

} // namespace

PageBase::PageBase(const char* className)
    : m_className(className)
{
    connect(&m_edits, &EditWatch::changed, this, [this](bool edited) {
        if (m_head)
            m_head->showEdited(edited);
        emit editedChanged(edited);
    });
    // For a host that makes the application anew.
    connect(this, &PageBase::editedChanged, this, [this](bool edited) { setProperty("edited", edited); });
}

PageBase::~PageBase() = default;

PageBase::Busy::Busy(PageBase* page)
    : m_page(page)
{
    emit page->mouseEventSignal(true);
}

void PageBase::Busy::release()
{
    if (m_page)
        emit m_page->mouseEventSignal(false);
    m_page.clear();
}

PageBase::FileOperation PageBase::plain(PlainOperation operation)
{
    return [operation](const QString& localPath) { return (lib()->*operation)(localPath); };
}

void PageBase::applyStyle()
{
    QLabel* title = findChild<QLabel*>(QStringLiteral("label_title"));
    if (title)
        title->setWordWrap(true);
    if (title && showsFiles()) {
        m_head = new PageHead(title);
        m_head->showProvenance(m_provenance);
    }
    TouchCheckBox::takeCaptionsIn(this);
    ZelSetUIStyleSheet(this, QLatin1String("fieldbussetting/") + QLatin1String(m_className));
    const QList<QTableWidget*> tables = findChildren<QTableWidget*>();
    for (const QTableWidget* table : tables)
        FitCaption::fit(table->horizontalHeader());
}

QString PageBase::translated(const char* text) const
{
    QString own = QCoreApplication::translate(m_className, text);
    // What has no translation comes back as it is.
    return own == QLatin1String(text) ? QCoreApplication::translate("PageBase", text) : own;
}

// The box is the page's child, so that it goes when the page does; it may be gone before `exec` returns.
PageBase::Answer PageBase::runBox(MsgBox* made)
{
    const QPointer<PageBase> self(this);
    const QPointer<MsgBox> box(made);
    const int result = box->exec();
    delete box.data();
    return self ? static_cast<Answer>(result) : Answer::Gone;
}

PageBase::Answer PageBase::tell(MsgBox::Kind kind, const QString& text)
{
    return runBox(new MsgBox(kind, text, this, MsgBox::Ok));
}

PageBase::Answer PageBase::ask(const QString& text, MsgBox::Buttons buttons)
{
    return runBox(new MsgBox(MsgBox::Information, text, this, buttons));
}

PageBase::Answer PageBase::askGrave(const QString& text, MsgBox::Buttons buttons)
{
    auto* box = new MsgBox(MsgBox::Information, text, this, buttons);
    box->setProperty("grave", true);
    return runBox(box);
}

Outcome PageBase::failed(const TransferTexts& texts, const char* text, const QString& file)
{
    const QString message = translated(text).replace(QLatin1String("%1"), file);
    return tell(texts.kind, message) == Answer::Gone ? Outcome::Gone : Outcome::Failed;
}

Outcome PageBase::sayUnread(const PageFile& file)
{
    return failed(file.texts, file.texts.readFailed, FileLocations::of(file.file).local);
}

Outcome PageBase::fetchAndRead(ConfigFile file, const FileOperation& read, const TransferTexts& texts)
{
    const QPointer<PageBase> self(this);
    const FileLocation& location = FileLocations::of(file);
    if (location.isOfService()) {
        const bool isThere = read({});
        if (!self)
            return Outcome::Gone;
        if (isThere)
            return Outcome::Done;
        return isAskedFor() ? failed(texts, texts.getFailed, location.controller) : Outcome::Failed;
    }
    const bool fetched = lib()->getFileFromCtrl(location.local, location.controller);
    if (!self)
        return Outcome::Gone;
    if (!fetched)
        return failed(texts, texts.getFailed, location.controller);
    if (!read(location.local))
        return failed(texts, texts.readFailed, location.local);
    return Outcome::Done;
}

Outcome PageBase::write(ConfigFile file, const FileOperation& operation, const TransferTexts& texts)
{
    const QPointer<PageBase> self(this);
    Busy busy(this);
    const bool written = operation(FileLocations::of(file).local);
    if (!self)
        return Outcome::Gone;
    busy.release();
    if (written)
        return Outcome::Done;
    if (file == ConfigFile::Override && !files().empty() &&
        lib()->writeProblem() == WriteProblem::ChangedOnController)
        return giveWay();
    return failed(texts, texts.writeFailed, fileName(file));
}

Outcome PageBase::send(ConfigFile file, const TransferTexts& texts)
{
    const QPointer<PageBase> self(this);
    const FileLocation& location = FileLocations::of(file);
    Busy busy(this);
    const bool sent = lib()->sendFileToCtrl(location.local, location.controller);
    if (!self)
        return Outcome::Gone;
    busy.release();
    // Also what was not sent is no newer than the page: it may have left anything behind.
    m_provenance.accept(file);
    if (!sent)
        return failed(texts, texts.sendFailed, fileName(file));
    noteSent(file);
    return Outcome::Done;
}

Outcome PageBase::writeAndSend(ConfigFile file, const FileOperation& operation, const TransferTexts& texts)
{
    const Outcome written = write(file, operation, texts);
    return written == Outcome::Done ? send(file, texts) : written;
}

void PageBase::noteServiceSent(ConfigFile file, bool sent)
{
    if (!ServiceFiles::keeps(file)) // nor hears of it
        ControllerCopies::instance().changed(FileLocations::of(file).controller);
    m_provenance.accept(file);
    if (sent)
        m_edits.settle();
}

bool PageBase::mayBeSaved(SaveWhen when)
{
    return when == SaveWhen::ServoOff ? checkServoOff() : Restart::isAllowed();
}

bool PageBase::checkServoOff()
{
    if (!DataAccess::isRobotRunning() && !DataAccess::isServoOn())
        return true;
    tell(MsgBox::Warning, translated(QT_TRANSLATE_NOOP("PageBase", "Please turn off the servo first!")));
    return false;
}

PageBase::Answer PageBase::askRestart()
{
    return askGrave(translated(QT_TRANSLATE_NOOP(
        "PageBase", "Save successfully, Are you sure to restart robot to make it effect?")));
}

PageBase::Answer PageBase::tellRestarted(bool stopped)
{
    return tell(
        MsgBox::Information,
        translated(stopped
                       ? QT_TRANSLATE_NOOP("PageBase", "Please close and reopen the teaching pendant.")
                       : QT_TRANSLATE_NOOP("PageBase", "Please manually power off and restart the robot!")));
}

void PageBase::offerRestart(Restart::Way way)
{
    if (askRestart() == Answer::Confirmed)
        restart(way);
}

void PageBase::restart(Restart::Way way)
{
    const Busy busy(this);
    Restart::perform(way);
}
