#include "PageBase.h"

#include "DataAccess.h"
#include "ZelFunctions.h"

#include <QCoreApplication>

namespace {

// The box is the page's child, so that it goes when the page does; it may be gone before `exec` returns.
int runBox(MsgBox::Kind kind, const QString& text, QWidget* page, MsgBox::Buttons buttons)
{
    const QPointer<MsgBox> box(new MsgBox(kind, text, page, buttons));
    const int result = box->exec();
    delete box.data();
    return result;
}

QString fileName(ConfigFile file)
{
    return FileLocations::of(file).controller.section(QLatin1Char('/'), -1);
}

} // namespace

PageBase::PageBase(const char* className)
    : m_className(className)
{
}

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
    ZelSetUIStyleSheet(this, QLatin1String("fieldbussetting/") + QLatin1String(m_className));
}

QString PageBase::translated(const char* text) const
{
    return QCoreApplication::translate(m_className, text);
}

PageBase::Answer PageBase::tell(MsgBox::Kind kind, const QString& text)
{
    const QPointer<PageBase> self(this);
    const int result = runBox(kind, text, this, MsgBox::Ok);
    return self ? static_cast<Answer>(result) : Answer::Gone;
}

PageBase::Answer PageBase::ask(const QString& text, MsgBox::Buttons buttons)
{
    const QPointer<PageBase> self(this);
    const int result = runBox(MsgBox::Information, text, this, buttons);
    return self ? static_cast<Answer>(result) : Answer::Gone;
}

Outcome PageBase::failed(const TransferTexts& texts, const char* text, const QString& file)
{
    const QString message = translated(text).replace(QLatin1String("%1"), file);
    return tell(texts.kind, message) == Answer::Gone ? Outcome::Gone : Outcome::Failed;
}

Outcome PageBase::fetchAndRead(ConfigFile file, const FileOperation& read, const TransferTexts& texts)
{
    const QPointer<PageBase> self(this);
    const FileLocation& location = FileLocations::of(file);
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
    return written ? Outcome::Done : failed(texts, texts.writeFailed, fileName(file));
}

Outcome PageBase::send(ConfigFile file, const TransferTexts& texts)
{
    const FileLocation& location = FileLocations::of(file);
    Busy busy(this);
    const bool sent = lib()->sendFileToCtrl(location.local, location.controller);
    busy.release();
    return sent ? Outcome::Done : failed(texts, texts.sendFailed, fileName(file));
}

Outcome PageBase::writeAndSend(ConfigFile file, const FileOperation& operation, const TransferTexts& texts)
{
    const Outcome written = write(file, operation, texts);
    return written == Outcome::Done ? send(file, texts) : written;
}

bool PageBase::checkServoOff()
{
    if (!DataAccess::isRobotRunning() && !DataAccess::isServoOn())
        return true;
    tell(MsgBox::Warning, translated("Please turn off the servo first!"));
    return false;
}

PageBase::Answer PageBase::askRestart()
{
    return ask(translated("Save successfully, Are you sure to restart robot to make it effect?"));
}

void PageBase::offerRestart(Restart::Way way)
{
    if (askRestart() == Answer::Confirmed)
        Restart::perform(way);
}
