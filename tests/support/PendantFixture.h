#ifndef TESTS_PENDANTFIXTURE_H
#define TESTS_PENDANTFIXTURE_H

#include "Faults.h"
#include "MsgBoxScript.h"
#include "NumericKeyboardScript.h"
#include "PendantWindow.h"
#include "SimulatedController.h"
#include "TestMain.h"
#include "WorkDirectory.h"

#include <QTemporaryDir>
#include <QtTest>

#include <memory>

class ApplicationSlot;

/// A whole pendant as the program makes it, with a simulated controller of its own in a scratch directory and
/// the plug-in loaded through its exported functions. Tests find buttons and fields by object name and press
/// them as a finger does; boxes are answered through MsgBoxScript, and one that nobody answers fails the test
/// instead of hanging it.
class PendantFixture
{
public:
    /// `timeScale`: how much faster than real time the host's waits and the controller run.
    explicit PendantFixture(double timeScale = NormalTimeScale) { start(timeScale); }
    ~PendantFixture() { stop(); }
    PendantFixture(const PendantFixture&) = delete;
    PendantFixture& operator=(const PendantFixture&) = delete;

    SimulatedController& controller() { return *m_controller; }
    Traffic& traffic() { return m_controller->traffic(); }
    PendantWindow& window() { return *m_window; }
    /// The place of the application that is on the screen, of the first one when none is.
    ApplicationSlot* application() const;
    QString usbDirectory() const { return m_directory->path() + QStringLiteral("/usb"); }

    /// Opens the application and waits until the menu is there and the first page has loaded.
    bool open();
    /// The same for tests of other pages: what the start page says of the roles that are on is confirmed, and
    /// boxes, transfers and writes are counted from here on.
    bool openPastStartPage();
    /// Whether the application is on the screen.
    bool isOpen() const;
    /// Presses a menu button and waits until its page has loaded; answers to come are queued before.
    bool openPage(const QString& menuButton);
    /// Selects a page by id, also one without a button.
    bool selectPage(int id);
    /// Waits until input is no longer blocked and no box is open.
    bool settle(int msec = 10000);

    /// The child of the application called `name`, null when there is none.
    template <typename Widget = QWidget>
    Widget* find(const QString& name) const
    {
        return m_window->findChild<Widget*>(name);
    }
    /// Presses the middle of the widget; false when it is not there or cannot be reached by a finger.
    bool press(const QString& name);
    /// The same for a save: the boxes are answered with `answers`, the traffic counts from here on, and all
    /// is over when it returns.
    bool save(const QString& button, std::initializer_list<int> answers);
    /// Presses a cell of a table.
    bool pressCell(const QString& table, int row, int column);
    /// Types into a touch line edit on the numeric keyboard that it opens.
    bool enter(const QString& edit, const QString& text);

    /// The child `name` of the page of class `page`: several pages have widgets of the same names.
    template <typename Widget = QWidget>
    Widget* findOn(const QString& page, const QString& name) const
    {
        const QWidget* widget = find(page);
        return widget ? widget->findChild<Widget*>(name) : nullptr;
    }
    bool pressOn(const QString& page, const QString& name);
    /// What the widget `name` says: its text, the chosen entry of a list. A widget that is not there says so.
    QString text(const QString& name) const;
    /// The index of the chosen entry of a list.
    int chosen(const QString& name) const;
    void choose(const QString& name, int index);
    bool isChecked(const QString& name) const;

    /// The operator's level drops below what the application asks for: it is closed, whatever it waits for.
    static void dropUserLevel();
    /// Whether it was closed by that with no box left over and at most so many restarts asked for, and can be
    /// opened again with every fault gone.
    bool reopensAfterDrop(int mostRestarts = 0);
    /// Idle ticks as the host gives them; false when no application is on the screen.
    bool tick(int times = 1);

    bool put(const QString& path, const QByteArray& content);
    QByteArray controllerFile(const QString& path) const;
    void set(const QString& name, double value) { set(name, 0, value); }
    void set(const QString& name, int element, double value)
    {
        m_controller->variables().set(name, element, value);
    }
    /// Lets something fail, as the option --fault does.
    bool fail(const QString& fault) { return m_controller->faults().setFromText(fault); }
    /// What the pendant wrote to the variable since the traffic was cleared.
    QVector<double> writesOf(const QString& name);
    double variable(const QString& name, int element = 0) const;
    /// Texts of the boxes shown so far, the oldest first.
    static QStringList messages();
    static void answer(std::initializer_list<int> results);

protected:
    enum Made { Later };
    explicit PendantFixture(Made /*later*/) {}
    /// What settles is calm for so long: longer than an idle tick, where a test looks at what ticks bring.
    int calmMs = 150;
    void start(double timeScale = NormalTimeScale);
    /// Of the applications on the pendant, the settings first; to be changed before the start.
    QStringList descriptions{QStringLiteral("fieldbussetting.json")};
    void stop();

private:
    static constexpr double NormalTimeScale = 20.0;

    std::unique_ptr<QTemporaryDir> m_directory;
    QString m_previousDirectory;
    std::unique_ptr<SimulatedController> m_controller;
    std::unique_ptr<PendantWindow> m_window;
};

#endif
