#ifndef STATUSMAIN_H
#define STATUSMAIN_H

#include "PageTable.h"
#include "StatusContext.h"
#include "Subjects.h"

#include <QDateTime>
#include <QWidget>

class QButtonGroup;
class QHBoxLayout;
class QLabel;
class QPushButton;
class QStackedWidget;
class RolePage;
class StatusPage;

/// The application's page: a row of tabs, a line that says how far what is shown can be trusted, and the
/// page of the chosen tab.
class StatusMain : public QWidget
{
    Q_OBJECT

public:
    explicit StatusMain(const StatusContext& context);
    ~StatusMain() override;

    /// The host's idle tick.
    void idle();

public slots:
    /// Shows the page of a tab, counted from 0; any other number changes nothing.
    void choosePage(int index);

signals:
    void closeApp();

private:
    /// What the line about the contact says.
    struct ContactLine
    {
        int contact = -1;
        int filesToCome = 0;
        QDateTime readAt;
    };

    QPushButton* addButton(QHBoxLayout* row, const char* name, const QString& caption);
    void showPage(std::size_t index);
    void showSubject(int subject);
    void adopt(StatusPage* page);
    void showContact();

    StatusContext m_context;
    QButtonGroup* m_tabs;
    QLabel* m_contact;
    QPushButton* m_refresh;
    QStackedWidget* m_stack;
    std::array<StatusPage*, PageTable::Count> m_pages{};
    RolePage* m_rolePage = nullptr;
    std::size_t m_chosen = 0;
    ContactLine m_shownContact;
};

#endif
