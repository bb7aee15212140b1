#ifndef PENDANT_PENDANTWINDOW_H
#define PENDANT_PENDANTWINDOW_H

#include <QWidget>

class ApplicationSlot;
class HomeScreen;
class QLabel;
class QStackedWidget;
class StatusBar;

/// The pendant's screen: the status bar on top, below it the home screen, the application, or the notice
/// that the pendant restarts.
class PendantWindow : public QWidget
{
    Q_OBJECT

public:
    static constexpr int Width = 1024;
    static constexpr int PageHeight = 680; ///< what applications are drawn for

    /// `plugin` is the library file of the application. The pendant is connected to its controller before.
    explicit PendantWindow(const QString& plugin, QWidget* parent = nullptr);
    ~PendantWindow() override;

    /// Opens the application, or as soon as the last one is gone.
    void openApplication();
    ApplicationSlot& application() { return *m_application; }
    HomeScreen& home() { return *m_home; }

signals:
    /// The pendant came back from its restart.
    void restarted();

private:
    void showPage(QWidget* page);
    void applicationClosed(bool forced);
    void applicationLeft();
    void logIn();
    void restart();
    void finishRestart();

    StatusBar* m_statusBar;
    QStackedWidget* m_pages;
    HomeScreen* m_home;
    QWidget* m_area; ///< of the application
    QLabel* m_restarting;
    ApplicationSlot* m_application;
    bool m_openWhenLeft = false;
    bool m_restartShown = false; ///< the notice was shown for long enough to be read
};

#endif
