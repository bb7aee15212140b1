#ifndef PENDANT_TOUR_H
#define PENDANT_TOUR_H

#include <QDir>
#include <QObject>
#include <QStringList>
#include <QTimer>

#include <functional>

class ControllerLink;
class PendantWindow;
class QDialog;
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
        int modbusPort; ///< of a Modbus slave on this machine, whose unit id is 1
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
    bool visitMes();
    bool visitFins();
    bool visitModbusMaster();
    bool visitMapping();
    bool visitDeviceNetSlave();
    bool visitDeviceNetMasterEditing();
    bool visitBusSwitches();
    bool visitExit();
    bool visitSlaveStates();
    bool visitUsb(); // TourUsb.cpp

    bool openPage(const QString& button);
    bool reportMappingTabs(const QString& mode);
    bool openHiddenPage(const QString& button);
    bool leave();
    bool reopen();
    bool visitMasters();
    bool visitSlaveModule();
    /// The same, whether or not the role of the page is switched on.
    bool pictureOfDialog(const QString& name, const QString& button);
    bool pictureOfDialog(const QString& name, const std::function<bool()>& act);
    bool pressAndSettle(QWidget* target);
    bool type(const QString& edit, const QString& text);
    bool waitForVariable(const QString& name, double value);
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
    QString m_wantedDialog;                 ///< name of the picture that the next dialog is to give
    bool m_dialogTaken = false;             ///< ... and it was taken
    bool m_dialogSeen = false;              ///< the dialog was on the screen for one round of the timer
    std::function<bool(QDialog&)> m_answer; ///< answers a dialog in another way than leaving it
    QStringList m_fetches;                  ///< of this stop
    QStringList m_messages;                 ///< of this stop
    bool m_errorShown = false;              ///< one of them told of an error
};

#endif
