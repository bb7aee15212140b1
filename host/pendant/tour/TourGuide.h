#ifndef PENDANT_TOURGUIDE_H
#define PENDANT_TOURGUIDE_H

#include <QDir>
#include <QObject>
#include <QStringList>
#include <QTimer>
#include <QWidget>

#include <functional>

class ControllerLink;
class PendantWindow;
class QDialog;

/// Leads through the pendant: finds what is on the screen, presses it as a finger does, waits until it is
/// done, dismisses every box, and takes the pictures. Of the application it knows the object names of the
/// menu and of what holds the pages; what is on a page, the stations know.
class TourGuide : public QObject
{
    Q_OBJECT

public:
    /// What was fetched from the controller since the last call: the paths, and how many of these fetches
    /// failed.
    struct Fetches
    {
        QStringList paths;
        int failed = 0;
    };
    struct Subject
    {
        PendantWindow& window;
        ControllerLink& controller;
        QWidget* panel; ///< the window that drives the controller, may be null
        int modbusPort; ///< of a Modbus slave on this machine, whose unit id is 1
        std::function<void(bool on)> setServo;
        std::function<Fetches()> takeFetches;
        /// Switches the machines at the other ends of the controller's links on or off; false when one did
        /// not come up.
        std::function<bool(bool on)> switchPartners;
        /// Switches a role of the controller at once, which the pendant cannot.
        std::function<void(const QString& role, bool on)> switchRole;
        /// Looks at what is on the screen at each stop; may be empty.
        std::function<void(const QString& stop)> look;
    };

    TourGuide(Subject subject, const QString& directory);

    const Subject& subject() const { return m_subject; }
    ControllerLink& controller() const { return m_subject.controller; }
    int pictures() const { return m_pictures; }

    /// The visible widget with that name; a page that is not shown may have one of the same name.
    template <typename Widget = QWidget>
    Widget* find(const QString& name) const
    {
        return qobject_cast<Widget*>(findVisible(name));
    }
    /// Class of the page that is shown, empty when none is.
    QString pageClass() const;

    /// These open or close the fieldbus settings from where the other leaves off. False, and told, when the
    /// start page did not load.
    bool open();
    bool leave();
    /// The same for any application, by its tile and through the desktop. Whether its first page is there is
    /// the application's affair.
    bool openApplication(const QString& className);
    bool leaveApplication();
    /// Pages fetch and read when they are built: new ones show what changed behind the pendant's back.
    bool reopen();
    /// Shows the page of a menu button; false, and told, when it did not load: a fetch failed, an error was
    /// shown, or a message said that something failed.
    bool openPage(const QString& button);
    /// The same for a page whose role is switched off, so that its button is not to be seen.
    bool openHiddenPage(const QString& button);
    /// Does `act`, waits until the page that comes up is there, and judges it in the same way.
    bool openBy(const QString& name, const std::function<bool()>& act);

    bool press(const QString& name);
    /// Types on the numeric keyboard that the edit opens.
    bool type(const QString& edit, const QString& text);
    /// Opens the list of a combo box and presses an entry; does not wait for what comes of it.
    bool choose(const QString& combo, int index);
    /// Waits until the pendant is at rest: the finger is let through, nothing is asked, and nothing was
    /// fetched for a while.
    bool settle();
    bool waitForVariable(const QString& name, double value) const;
    /// Waits until so many of the lights in sight are green, and none is red or amber; false, and told, when
    /// it does not come to that.
    bool waitForLights(int green) const;
    /// Lets `msec` pass, with events.
    static void wait(int msec);

    /// Fetches a controller's file, which is not told as one of the pendant's fetches.
    bool fetch(const QString& path, QByteArray& content);

    /// Takes a picture of the pendant with all that lies over it, or of `shown`, and prints a line with what
    /// was fetched and said since the last one.
    bool report(const QString& name, QWidget* shown = nullptr);
    /// Does `act` and takes a picture of the dialog that comes up, which is dismissed then. Dialogs of which
    /// `isReady` says no are left to themselves meanwhile.
    bool reportDialog(const QString& name, const std::function<bool()>& act,
                      std::function<bool(QDialog&)> isReady = {});
    /// The same for the dialog that a press opens.
    bool reportDialog(const QString& name, const QString& button);
    static bool fail(const QString& what);

private:
    QWidget* findVisible(const QString& name) const;
    bool isBusy() const;
    void takeFetches();
    void noteMessage(const QDialog& dialog);
    void answerDialog();

    Subject m_subject;
    QDir m_directory;
    QTimer m_answering;
    int m_pictures = 0;
    QString m_wantedDialog;                  ///< name of the picture that the next dialog is to give
    bool m_dialogTaken = false;              ///< ... and it was taken
    bool m_dialogSeen = false;               ///< the dialog was on the screen for one round of the timer
    std::function<bool(QDialog&)> m_isReady; ///< none: every dialog is
    QStringList m_fetches;                   ///< since the last picture
    QStringList m_messages;                  ///< since the last picture
    QStringList m_failures;                  ///< why the page that is being opened did not load
};

#endif
