#ifndef PENDANT_APPLICATIONSLOT_H
#define PENDANT_APPLICATIONSLOT_H

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
class ApplicationSlot : public QObject
{
    Q_OBJECT

public:
    enum class State {
        Empty,  ///< nothing of the application exists
        Shown,  ///< it is on the screen
        Leaving ///< off the screen, waiting to be deleted
    };

    /// `className` is the name by which the application asks for its page id.
    ApplicationSlot(const QString& library, const QString& className, QWidget* area,
                    QObject* parent = nullptr);
    /// Takes the application down at once.
    ~ApplicationSlot() override;

    /// Loads the library and finds its two functions; false leaves the reason in `error()`.
    bool load();
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
    void switchVariables(bool used);
    bool nothingOnTheStack() const;
    void deleteWhenIdle();
    void deleteApplication();

    using CreateData = BaseZelCustomData* (*)();
    using CreateWidget = QWidget* (*)(BaseZelCustomData*, QWidget*);

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
    bool m_variablesUsed = false;
    int m_loopLevel = 0; ///< at opening; only read without a PendantApplication
};

#endif
