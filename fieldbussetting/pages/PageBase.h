#ifndef PAGEBASE_H
#define PAGEBASE_H

#include "EditWatch.h"
#include "FieldbusSettingLib.h"
#include "FileLocations.h"
#include "MsgBox.h"
#include "Provenance.h"
#include "Restart.h"

#include <QPointer>
#include <QTimer>
#include <QWidget>

#include <functional>
#include <optional>
#include <vector>

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

class PageHead;

/// Base of the bus pages: the steps that every page makes, so that a page is only what is particular to it.
///
/// A page says which files it shows (`files`) and how it shows their records (`fill`); it is then loaded when
/// it is made, and again when it is shown and the controller has newer files than it read. What the operator
/// can change is watched. Under the title it says where its contents came from, and no save gets past
/// `isReadyToSave` with contents that were not read.
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

    /// A file that a page shows: how its local copy is read into the library's record, and what is said when
    /// it cannot be had. One that the bus file data service holds is fetched and read in one, and a failure
    /// is said only to whoever wants to save.
    struct PageFile
    {
        ConfigFile file;
        FileOperation read;
        TransferTexts texts = {};
    };

    /// `className` is the key of the page's style sheet and the context of its texts.
    explicit PageBase(const char* className);
    ~PageBase() override;

    /// Called on each idle tick of the host while the page is visible or at work.
    virtual void refreshStatus() {}
    /// Whether a save is under way that the idle ticks carry on, also while the page is hidden.
    virtual bool isAtWork() const { return false; }
    /// Told once, right after construction, whether free bus configuration is switched on.
    virtual void setFreeConfiguration(bool open) { Q_UNUSED(open) }
    /// Called once when the page has its place in the menu page, before it is shown: time for what a page
    /// fetches before it is seen. The page may be gone afterwards.
    virtual void prepare() {}

    /// Whether the form differs from what was loaded or saved last.
    bool isEdited() const { return m_edits.isEdited(); }
    /// Fields that the operator changes and a save takes over.
    EditWatch& edits() { return m_edits; }

    // The steps of a page, for itself and for the members that it is composed of.

    static FieldbusSettingLib* lib() { return FieldbusSettingLib::getInstance(); }

    /// The bus file data service's file, which it has read already or is asked to read.
    static PageFile heldByService(ConfigFile file, const TransferTexts& texts = {});

    /// A text in the operator's language: by the page's own translation, else by the one that all pages
    /// share. What the pages share is marked with QT_TRANSLATE_NOOP("PageBase", ...).
    QString translated(const char* text) const;

    /// Shows a box with one button and gives what it was answered.
    Answer tell(MsgBox::Kind kind, const QString& text);
    /// Asks a question; the box is of kind information.
    Answer ask(const QString& text, MsgBox::Buttons buttons = MsgBox::OkCancel);
    /// A question after which the robot restarts: its "yes" is kept from under a hand that only goes on
    /// pressing, where the host can.
    Answer askGrave(const QString& text, MsgBox::Buttons buttons = MsgBox::OkCancel);
    bool confirmed(const QString& text) { return ask(text) == Answer::Confirmed; }

    enum class Input { Blocked, Free };
    /// Fetches the files of the page, reads them into the library's records, shows what failed, and fills the
    /// page in any case. Failed when one of them was not read, or while the page loads already.
    Outcome load(Input input = Input::Blocked);
    /// The first step of a save, and of an edit mode: true when the page shows what the controller holds.
    /// Otherwise it has loaded the page, or said why it cannot, and the save ends here. The page may be gone
    /// after a false.
    bool isReadyToSave();

    /// Fetches the file and reads it into the library's record; a failure is shown to the operator.
    Outcome fetchAndRead(ConfigFile file, const FileOperation& read, const TransferTexts& texts = {});
    /// Writes the record to the local file. Input is blocked meanwhile: a writer that needs the controller's
    /// present file fetches it.
    Outcome write(ConfigFile file, const FileOperation& operation, const TransferTexts& texts = {});
    /// Sends the local file. When all files of the page are sent, what stands on it counts as saved.
    Outcome send(ConfigFile file, const TransferTexts& texts = {});
    Outcome writeAndSend(ConfigFile file, const FileOperation& operation, const TransferTexts& texts = {});
    /// The save that begins sends this file too, which the page does not show.
    void alsoSends(ConfigFile file) { m_unsent.push_back(file); }
    /// The bus file data service has sent the last file of a save, or could not.
    void noteServiceSent(ConfigFile file, bool sent);
    /// Loads the page again when the controller's files are newer; with edits on it, if the operator wants
    /// that. The page may be gone afterwards.
    void catchUp();

    /// What must hold before anything is saved.
    enum class SaveWhen {
        ServoOff,      ///< as `checkServoOff`
        RestartAllowed ///< the service allows a restart now; when it does not, nothing is said
    };
    /// The page may be gone after a false.
    bool mayBeSaved(SaveWhen when);
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

signals:
    /// True: a long operation begins, the menu page blocks input; false: it has ended. In pairs, may nest.
    void mouseEventSignal(bool);
    /// The form differs from what was loaded or saved last, or does so no more.
    void editedChanged(bool edited);

protected:
    /// The files that the page shows now, in the order in which they are fetched; a page may have other ones
    /// at each load.
    virtual std::vector<PageFile> files() const { return {}; }
    /// Comes first in a load: the page decides what it shows.
    virtual void beginLoad() {}
    /// Shows the records, whether or not they were read just now. What it shows counts as not edited.
    virtual void fill() {}
    /// Whether what stands on the page may be saved although one of its files could not be read. It is then
    /// left as the operator chose it.
    virtual bool isUsableUnread() const { return false; }

    /// Applies the page's style sheet and puts the line on the origin of the contents under the title; to be
    /// called when the form is built.
    void applyStyle();
    /// Runs `slot` once after `msec` milliseconds, unless the page is gone by then.
    template <typename Page>
    void scheduleOnce(int msec, void (Page::*slot)());

    /// Whether the load that runs is one that the operator waits for, to save.
    bool isAskedFor() const { return m_isAskedFor; }
    /// Shows the records again. What a save that failed has left in them is still to be saved.
    void refill();

    void showEvent(QShowEvent* event) override;

protected slots:
    virtual void slotGetFileToUi() { load(); }

private slots:
    void catchUpWhenShown();

private:
    /// Whether its contents come from the controller, so that it says when they were read.
    bool showsFiles() const { return !files().empty(); }
    /// Fetches the files and reads them into the records; it shows what failed.
    Outcome fetch();
    Answer askReload();
    bool holdsService() const;
    void noteSent(ConfigFile file);
    Outcome giveWay();
    Outcome sayUnread(const PageFile& file);

    Outcome failed(const TransferTexts& texts, const char* text, const QString& file);
    Answer runBox(MsgBox* made);

    const char* m_className;
    EditWatch m_edits;
    Provenance m_provenance;
    std::vector<ConfigFile> m_unsent; ///< files of the page that a save has still to send
    bool m_loading = false;
    bool m_isAskedFor = false;
    QDateTime m_readAt;         ///< the first of the files that are fetched now
    PageHead* m_head = nullptr; ///< none on a page without a title
    std::optional<Busy> m_catchingUp;
};

template <typename Page>
void PageBase::scheduleOnce(int msec, void (Page::*slot)())
{
    QTimer::singleShot(msec, static_cast<Page*>(this), slot);
}

#endif
