#ifndef PENDANT_TOUR_H
#define PENDANT_TOUR_H

#include <QDir>
#include <QObject>
#include <QStringList>
#include <QTimer>

#include <functional>

class ControllerLink;
class PendantWindow;
class QWidget;

/// Walks through everything that the pendant shows, as an operator would, and takes a picture of each
/// stop. Of the application it knows nothing but object names.
class Tour : public QObject
{
    Q_OBJECT

public:
    struct Subject
    {
        PendantWindow& window;
        ControllerLink& controller;
        QWidget* panel; ///< the window that drives the controller
        /// The controller's files that were fetched since the last call.
        std::function<QStringList()> takeFetches;
    };

    Tour(Subject subject, const QString& directory);

    /// Makes the tour and prints a line a stop; 0 when every stop was reached.
    int run();

private:
    using Visit = bool (Tour::*)();
    struct Station
    {
        const char* name;
        Visit visit;
    };
    static const Station Stations[];

    bool visitHome();
    bool visitMenu();
    bool visitPages();
    bool visitHeartbeatLights();
    bool visitMessage();
    bool visitNumericKeyboard();
    bool visitLogIn();
    bool visitPanel();
    bool visitBusSwitches();
    bool visitExit();

    bool openPage(const QString& button);
    bool pictureOfDialog(const QString& name, const QString& button);
    bool pictureOfDialog(const QString& name, const std::function<bool()>& act);
    bool pressAndSettle(QWidget* target);
    bool settle();
    bool isBusy() const;
    QWidget* find(const QString& name) const;
    QString pageClass() const;
    void answerDialog();
    bool report(const QString& name, QWidget* shown = nullptr);
    bool fail(const QString& what);

    Subject m_subject;
    QDir m_directory;
    QTimer m_answering;
    int m_pictures = 0;
    QString m_wantedDialog;     ///< name of the picture that the next dialog is to give
    bool m_dialogTaken = false; ///< ... and it was taken
    bool m_confirmNext = false; ///< the next dialog is confirmed, not dismissed
    bool m_dialogSeen = false;  ///< the dialog was on the screen for one round of the timer
    QStringList m_fetches;      ///< of this stop
    QStringList m_messages;     ///< of this stop
    bool m_errorShown = false;  ///< one of them told of an error
};

#endif
