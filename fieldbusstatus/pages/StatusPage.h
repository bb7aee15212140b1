#ifndef STATUSPAGE_H
#define STATUSPAGE_H

#include "StatusContext.h"
#include "Subjects.h"

#include <QWidget>

class QLabel;
class QVBoxLayout;

/// Base of the pages: a title, what is below it, and the moment to show it. A page that is not seen is not
/// kept up to date; it is when it is shown.
class StatusPage : public QWidget
{
    Q_OBJECT

public:
    StatusPage(const char* className, const StatusContext& context);

    /// The host's idle tick while the page is visible: shows what is new. Nothing is touched when nothing is.
    void idle();

signals:
    /// The operator wants to see the page of a subject (see `Subjects::Id`).
    void subjectWanted(int subject);

protected:
    /// Shows what is known now.
    virtual void showState() = 0;
    /// What `showState` depends on; it is called when this has changed since the last time.
    virtual int version() const;
    /// The next tick shows the state again.
    void outdate() { m_shownVersion = -1; }

    const StatusContext& context() const { return m_context; }
    ControllerWatch& watch() const { return m_context.watch; }
    void setTitle(const QString& title);
    /// Below the title.
    QVBoxLayout* contents() const { return m_contents; }

    void showEvent(QShowEvent* event) override;

private:
    StatusContext m_context;
    QLabel* m_title;
    QVBoxLayout* m_contents;
    int m_shownVersion = -1;
};

#endif
