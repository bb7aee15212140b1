#include "PageBase.h"

#include "DataAccess.h"
#include "ZelFunctions.h"

#include <QCoreApplication>

#include <utility>

namespace {

QWidget* makerOfNextPage = nullptr;

QString fileName(ConfigFile file)
{
    return FileLocations::of(file).controller.section(QLatin1Char('/'), -1);
}

} // namespace

class PageBase::Presence
{
public:
    explicit Presence(PageBase* page)
        : m_page(page)
    {
    }
    /// A page that is not put anywhere yet is being made.
    explicit operator bool() const { return m_page && (m_page->parentWidget() || m_page->m_maker); }

private:
    QPointer<PageBase> m_page;
};

PageBase::PageBase(const char* className)
    : m_className(className)
    , m_maker(std::exchange(makerOfNextPage, nullptr))
{
}

PageBase* PageBase::make(PageBase* (*create)(), QWidget* maker)
{
    makerOfNextPage = maker;
    return create();
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
    QString own = QCoreApplication::translate(m_className, text);
    // What has no translation comes back as it is.
    return own == QLatin1String(text) ? QCoreApplication::translate("PageBase", text) : own;
}

// The box is the page's child, so that it goes when the page does; it may be gone before `exec` returns.
// While the page is made nobody owns it, and the box is its maker's.
PageBase::Answer PageBase::runBox(MsgBox::Kind kind, const QString& text, MsgBox::Buttons buttons, bool grave)
{
    const Presence self(this);
    if (!self)
        return Answer::Gone;
    const QPointer<MsgBox> box(new MsgBox(kind, text, parentWidget() ? this : m_maker.data(), buttons));
    box->setProperty("grave", grave);
    const int result = box->exec();
    delete box.data();
    return self ? static_cast<Answer>(result) : Answer::Gone;
}

PageBase::Answer PageBase::tell(MsgBox::Kind kind, const QString& text)
{
    return runBox(kind, text, MsgBox::Ok);
}

PageBase::Answer PageBase::ask(const QString& text, MsgBox::Buttons buttons)
{
    return runBox(MsgBox::Information, text, buttons);
}

Outcome PageBase::failed(const TransferTexts& texts, const char* text, const QString& file)
{
    const QString message = translated(text).replace(QLatin1String("%1"), file);
    return tell(texts.kind, message) == Answer::Gone ? Outcome::Gone : Outcome::Failed;
}

Outcome PageBase::fetchAndRead(ConfigFile file, const FileOperation& read, const TransferTexts& texts)
{
    const Presence self(this);
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
    const Presence self(this);
    Busy busy(this);
    const bool written = operation(FileLocations::of(file).local);
    if (!self)
        return Outcome::Gone;
    busy.release();
    return written ? Outcome::Done : failed(texts, texts.writeFailed, fileName(file));
}

Outcome PageBase::send(ConfigFile file, const TransferTexts& texts)
{
    const Presence self(this);
    const FileLocation& location = FileLocations::of(file);
    Busy busy(this);
    const bool sent = lib()->sendFileToCtrl(location.local, location.controller);
    if (!self)
        return Outcome::Gone;
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
    tell(MsgBox::Warning, translated(QT_TRANSLATE_NOOP("PageBase", "Please turn off the servo first!")));
    return false;
}

PageBase::Answer PageBase::askRestart()
{
    return runBox(MsgBox::Information,
                  translated(QT_TRANSLATE_NOOP(
                      "PageBase", "Save successfully, Are you sure to restart robot to make it effect?")),
                  MsgBox::OkCancel, true);
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
