#ifndef PENDANT_APPLICATIONSLOT_H
#define PENDANT_APPLICATIONSLOT_H

#include "ApplicationInfo.h"

#include <QLibrary>
#include <QPointer>
#include <QTimer>

#include <memory>

class BaseZelCustomData;
class ZelBaseWidget;

/// The place of one application of a plug-in on the pendant: loads the library, makes the application's
/// data and widget, shows it over `area`, feeds it (idle ticks, user level, variable context), and takes
/// it down when the desktop is asked to close it: off the screen at once, deleted later and only when
/// nothing of it is on the stack.
///
/// The data of a resident application is made once and outlives its widgets. When it is a QObject with a slot
/// `slotIdle()`, it gets the idle ticks too, whether the application is shown or not.
class ApplicationSlot : public QObject
{
    Q_OBJECT

public:
    enum class State {
        Empty,  ///< nothing of the application exists
        Shown,  ///< it is on the screen
        Leaving ///< off the screen, waiting to be deleted
    };

    ApplicationSlot(const ApplicationInfo& info, QWidget* area, QObject* parent = nullptr);
    /// Takes the application down at once.
    ~ApplicationSlot() override;

    /// Loads the library and finds its two functions; false leaves the reason in `error()`.
    bool load();
    /// Makes the data of a resident application and begins its ticks; nothing for any other one.
    void startResident();
    /// Ends what `startResident` began; false while its tick or its widget is still there.
    bool stopResident();
    const ApplicationInfo& info() const { return m_info; }
    /// The page that the application is shown on.
    QWidget* area() const { return m_area; }
    /// Why the application cannot be shown, as a text for the operator; empty when it can.
    QString error() const { return m_error; }

    /// Makes and shows the application. False when it cannot be made, is shown already, or the last one is
    /// still leaving.
    bool open();
    /// Takes the application off the screen; it is deleted on a later event-loop turn.
    void close(bool forced = false);

    State state() const { return m_state; }
    /// Null when the application is not there.
    ZelBaseWidget* widget() const;

signals:
    void opened();
    /// The application is off the screen; `forced` when the user level closed it.
    void closed(bool forced);
    /// The application's widget and data are deleted; it can be opened again.
    void left();

private:
    void deliver(const char* slot);
    void tick();
    void tickData();
    void switchVariables(bool used);
    bool nothingOnTheStack() const;
    void deleteWhenIdle();
    void deleteApplication();
    void forgetData();

    using CreateData = BaseZelCustomData* (*)();
    using CreateWidget = QWidget* (*)(BaseZelCustomData*, QWidget*);

    ApplicationInfo m_info;
    QLibrary m_library;
    int m_pageId;
    QPointer<QWidget> m_area;
    CreateData m_createData = nullptr;
    CreateWidget m_createWidget = nullptr;
    QString m_error;

    State m_state = State::Empty;
    std::unique_ptr<BaseZelCustomData> m_data;
    QPointer<ZelBaseWidget> m_widget;
    QTimer m_idle;
    QTimer m_reaper;
    bool m_ticking = false;
    bool m_dataTicking = false;
    bool m_variablesUsed = false;
    int m_loopLevel = 0; ///< at opening; only read without a PendantApplication
};

#endif
