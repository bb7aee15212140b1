#ifndef PENDANT_PENDANTWINDOW_H
#define PENDANT_PENDANTWINDOW_H

#include <QWidget>

#include <memory>
#include <vector>

class ApplicationSlot;
class InstalledApplications;
class HomeScreen;
class LanguageChange;
class QLabel;
class QStackedWidget;
class StatusBar;

/// The pendant's screen: the status bar on top, below it the home screen, the application that is open, or
/// the notice that the pendant restarts. One application is open at a time; closing it returns home.
class PendantWindow : public QWidget
{
    Q_OBJECT

public:
    static constexpr int Width = 1024;
    static constexpr int PageHeight = 680; ///< what applications are drawn for
    static QSize screenSize();             ///< of the status bar and a page

    /// The pendant is connected to its controller before. Every application's library is loaded now.
    explicit PendantWindow(const InstalledApplications& applications, QWidget* parent = nullptr);
    ~PendantWindow() override;

    /// Opens an application from the home screen, or as soon as the last one is gone. While the controller is
    /// down, one that needs it stays closed.
    void openApplication(const QString& className);
    const std::vector<ApplicationSlot*>& applications() const { return m_applications; }
    /// Null when there is none of that class name.
    ApplicationSlot* application(const QString& className) const;
    /// The one that is open or still leaving, null when there is none.
    ApplicationSlot* present() const;
    HomeScreen& home() { return *m_home; }
    LanguageChange& language() { return *m_language; }

signals:
    /// The pendant came back from its restart.
    void restarted();

protected:
    void changeEvent(QEvent* event) override;

private:
    void retranslate();
    void addApplication(ApplicationSlot* application);
    void showPage(QWidget* page);
    bool isRestarting() const;
    void applicationClosed(const ApplicationSlot& application, bool forced);
    void applicationLeft();
    void logIn();
    void restart();
    void finishRestart();

    StatusBar* m_statusBar;
    QStackedWidget* m_pages;
    HomeScreen* m_home;
    QLabel* m_restarting;
    std::unique_ptr<LanguageChange> m_language;
    std::vector<ApplicationSlot*> m_applications;
    QString m_openWhenLeft;      ///< class name; empty: none
    bool m_restartShown = false; ///< the notice was shown for long enough to be read
};

#endif
