#ifndef TESTS_PAGETEST_H
#define TESTS_PAGETEST_H

#include "PendantFixture.h"
#include "Rows.h"

/// A test of one page, which is the operator of a pendant: a fresh one for each row.
class PageTest : public QObject, public PendantFixture
{
    Q_OBJECT

public:
    /// The page is reached by its menu button or, without one, by its id.
    explicit PageTest(const QString& button, int id = -1)
        : PendantFixture(Later)
        , m_button(button)
        , m_id(id)
    {
    }

private slots:
    void init() { start(); }
    void cleanup() { stop(); }

protected:
    /// Another page from here on, for a test of twins.
    void turnTo(int id) { m_id = id; }
    /// For a test that needs time to look: another pendant, slower than usual.
    void restartAt(double timeScale)
    {
        stop();
        start(timeScale);
    }
    /// Opens the application and the page; boxes, transfers and writes count from the opening of the page on.
    bool show() { return openPastStartPage() && showAgain(); }
    /// The same with a file that was put on the controller before.
    bool show(const QString& path, const QByteArray& content) { return put(path, content) && show(); }
    /// Opens the page of an application that is open.
    bool showAgain() { return m_button.isEmpty() ? selectPage(m_id) : openPage(m_button); }

private:
    QString m_button;
    int m_id;
};

#endif
