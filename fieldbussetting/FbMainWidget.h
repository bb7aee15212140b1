#ifndef FBMAINWIDGET_H
#define FBMAINWIDGET_H

#include "BusObserver.h"
#include "InputBlock.h"
#include "PageRegistry.h"
#include "ServiceFiles.h"

#include <QStringList>
#include <QWidget>

#include <memory>

class PageBase;
class ProgressBarWidget;
class QButtonGroup;

namespace Ui {
class FbMainWidget;
}

/// The menu page: a column of buttons for the bus roles that are switched on, and beside it the page of the
/// chosen one. Hidden behind a progress bar until the bus file data service has reported both its files.
class FbMainWidget : public QWidget, public BusObserver
{
    Q_OBJECT

public:
    FbMainWidget();
    ~FbMainWidget() override;

    /// The host's idle tick: the visible pages, the system settings, the exit button.
    void idle();

    void busNotification(int kind, const QString& path, bool success) override;

signals:
    void closeApp();

private slots:
    void on_exitBtn_clicked();
    /// Shows the page of `id` and creates it when it is shown for the first time. An id that no page has
    /// counts as 0. Does nothing while a page blocks input.
    void slotMenuBtnsClicked(int id);
    /// A page begins (true) or ends (false) a time in which the operator's input is ignored.
    void mouseEventTransParentSlot(bool status);
    void slotGetFileToUi();
    void retry();

private:
    void buildMenu();
    void showButtonsOf(const QStringList& busNames);
    void countNotification();
    /// The roles are known: their buttons, and the first page.
    void showStart();
    void showRetryNotice(bool shown);
    /// The band over the pages follows whether an import is to be settled.
    void showUnfinishedImport();
    void tellUnfinishedImport();
    /// The page of `id`, created when it is wanted for the first time; null when there is none.
    PageBase* pageOf(int id);
    void showPage(int id);

    std::unique_ptr<Ui::FbMainWidget> ui;
    QButtonGroup* m_menuButtons;
    int m_mouseBlockCount = 0;
    InputBlock m_inputBlock{this};
    ServiceFiles m_serviceFiles;  ///< hears the service before the pages do
    int m_chosenPage = -1;        // id of the page that was asked for last, -1 before the first
    int m_pageInPreparation = -1; // id of the page that prepares itself to be shown, -1 for none
    QStringList m_busNames;       // switched on
    std::array<PageBase*, PageRegistry::PageCount> m_pages{};
    std::unique_ptr<ProgressBarWidget> m_progressBar;
    int m_notificationCount = 0;
    bool m_busConfigPending = true; ///< until it was read
    bool m_busConfigAwaited = true; ///< until it was read, or could not be
    bool m_mappingPending = true;
};

#endif
