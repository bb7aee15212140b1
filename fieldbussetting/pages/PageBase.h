#ifndef PAGEBASE_H
#define PAGEBASE_H

#include "FieldbusSettingLib.h"
#include "FileLocations.h"
#include "MsgBox.h"
#include "Restart.h"

#include <QPointer>
#include <QTimer>
#include <QWidget>

#include <functional>
#include <optional>

/// What happened in a step that showed a box or waited. While it did, events were processed: the page may
/// have been closed. `Gone` says so; the caller then returns at once without touching the page.
enum class Outcome { Done, Failed, Gone };

/// The messages of a file's transfer and the kind of box that shows them. Texts as `translated` takes them. A
/// "%1" in a text stands for the file: its path on the controller when it cannot be fetched, its local path
/// when it cannot be read, else its name.
struct TransferTexts
{
    MsgBox::Kind kind = MsgBox::Warning;
    const char* getFailed = QT_TRANSLATE_NOOP("PageBase", "Failed to get file.");
    const char* readFailed = QT_TRANSLATE_NOOP("PageBase", "Failed to read file.");
    const char* writeFailed = QT_TRANSLATE_NOOP("PageBase", "Failed to write file.");
    const char* sendFailed = QT_TRANSLATE_NOOP("PageBase", "Failed to send file.");
};

/// Base of the bus pages: the steps that every page makes, so that a page is only what is particular to it.
///
/// Any box and any fetch processes events, so the page can be destroyed inside these calls. They return an
/// `Outcome` or an `Answer` that says so.
///
/// The slots named on_<object>_<signal> are connected when the form is built: a widget that is made later, in
/// a loop over a table, is connected by the loop.
class PageBase : public QWidget
{
    Q_OBJECT

public:
    /// `className` is the key of the page's style sheet and the context of its texts.
    explicit PageBase(const char* className);

    /// Makes a page for `maker`, which owns it once it has been put into it. A page that waits in its
    /// constructor counts as gone when `maker` goes meanwhile: it shows nothing more and is to be deleted.
    static PageBase* make(PageBase* (*create)(), QWidget* maker);

    /// Called on each idle tick of the host while the page is visible or at work.
    virtual void refreshStatus() {}
    /// Whether a save is under way that the idle ticks carry on, also while the page is hidden.
    virtual bool isAtWork() const { return false; }
    /// Told once, right after construction, whether free bus configuration is switched on.
    virtual void setFreeConfiguration(bool open) { Q_UNUSED(open) }

signals:
    /// True: a long operation begins, the menu page blocks input; false: it has ended. In pairs, may nest.
    void mouseEventSignal(bool);

public:
    // The steps of a page, for itself and for the members that it is composed of.

    /// Third is an answer that some hosts give to a box that asks nothing.
    enum class Answer { Dismissed, Confirmed, Second, Third, Gone };

    /// Blocks input for its lifetime; always releases what it blocked, unless the page is gone. What lasts
    /// over several slots is a member: `std::optional<Busy>`.
    class Busy
    {
    public:
        explicit Busy(PageBase* page);
        ~Busy() { release(); }
        Busy(const Busy&) = delete;
        Busy& operator=(const Busy&) = delete;
        /// Releases before the end of the scope.
        void release();

    private:
        QPointer<PageBase> m_page;
    };

    /// An operation on the local copy of a file; false when it failed.
    using FileOperation = std::function<bool(const QString& localPath)>;
    using PlainOperation = bool (FieldbusSettingLib::*)(QString);
    /// An operation of the library that takes nothing but the path.
    static FileOperation plain(PlainOperation operation);

    static FieldbusSettingLib* lib() { return FieldbusSettingLib::getInstance(); }

    /// A text in the operator's language: by the page's own translation, else by the one that all pages
    /// share. What the pages share is marked with QT_TRANSLATE_NOOP("PageBase", ...).
    QString translated(const char* text) const;

    /// Shows a box with one button and gives what it was answered.
    Answer tell(MsgBox::Kind kind, const QString& text);
    /// Asks a question; the box is of kind information.
    Answer ask(const QString& text, MsgBox::Buttons buttons = MsgBox::OkCancel);
    bool confirmed(const QString& text) { return ask(text) == Answer::Confirmed; }

    /// Fetches the file and reads it into the library's record; a failure is shown to the operator.
    Outcome fetchAndRead(ConfigFile file, const FileOperation& read, const TransferTexts& texts = {});
    /// Writes the record to the local file. Input is blocked meanwhile: a writer that needs the controller's
    /// present file fetches it.
    Outcome write(ConfigFile file, const FileOperation& operation, const TransferTexts& texts = {});
    /// Sends the local file.
    Outcome send(ConfigFile file, const TransferTexts& texts = {});
    Outcome writeAndSend(ConfigFile file, const FileOperation& operation, const TransferTexts& texts = {});

    /// True when the robot stands still and its servo is off; otherwise says so and answers false. The page
    /// may be gone after a false.
    bool checkServoOff();
    /// Asks whether to restart the robot for what was saved.
    Answer askRestart();
    /// Says what to do after a restart of the controller that was seen to begin, or was not.
    Answer tellRestarted(bool stopped);
    /// Asks, and restarts when it is confirmed. The page may be gone afterwards.
    void offerRestart(Restart::Way way);
    /// Restarts with input blocked, so that no second restart is asked for meanwhile. The page may be gone
    /// afterwards.
    void restart(Restart::Way way);

protected:
    /// Applies the page's style sheet; to be called when the form is built.
    void applyStyle();
    /// Runs `slot` once after `msec` milliseconds, unless the page is gone by then.
    template <typename Page>
    void scheduleOnce(int msec, void (Page::*slot)());

private:
    /// Looks after the page while events are processed: false when the page is gone.
    class Presence;

    Outcome failed(const TransferTexts& texts, const char* text, const QString& file);
    /// A `grave` question's "yes" is kept from under a hand that only goes on pressing, where the host can.
    Answer runBox(MsgBox::Kind kind, const QString& text, MsgBox::Buttons buttons, bool grave = false);

    const char* m_className;
    QPointer<QWidget> m_maker;
};

template <typename Page>
void PageBase::scheduleOnce(int msec, void (Page::*slot)())
{
    QTimer::singleShot(msec, static_cast<Page*>(this), slot);
}

#endif
