#ifndef PENDANT_BORROWED_H
#define PENDANT_BORROWED_H

#include "ControllerLink.h"
#include "TourGuide.h"

#include <QByteArray>
#include <QString>

/// A file of the controller that a station changes, and that is put back: what is walked through stays as it
/// was.
class BorrowedFile
{
public:
    BorrowedFile(TourGuide& guide, const QString& path)
        : m_guide(guide)
        , m_path(path)
        , m_fetched(guide.fetch(path, m_before))
    {
    }
    ~BorrowedFile() { putBack(); }
    BorrowedFile(const BorrowedFile&) = delete;
    BorrowedFile& operator=(const BorrowedFile&) = delete;

    const QByteArray& before() const { return m_before; }
    /// False when it cannot be put back either, as it could not be fetched.
    bool store(const QByteArray& content)
    {
        m_changed = m_fetched;
        return m_fetched && m_guide.controller().storeFile(m_path, content);
    }
    bool putBack()
    {
        const bool done = !m_changed || m_guide.controller().storeFile(m_path, m_before);
        m_changed = false;
        return done || TourGuide::fail(m_path + QStringLiteral(" was not put back"));
    }
    /// It was changed by the pendant, too.
    void markChanged() { m_changed = m_fetched; }

private:
    TourGuide& m_guide;
    QString m_path;
    QByteArray m_before;
    bool m_fetched;
    bool m_changed = false;
};

/// The same for a variable.
class BorrowedVariable
{
public:
    BorrowedVariable(TourGuide& guide, const QString& name, double value)
        : m_guide(guide)
        , m_name(name)
        , m_before(guide.controller().readVariable(name))
    {
        m_guide.controller().writeVariable(m_name, 0, value);
    }
    ~BorrowedVariable() { m_guide.controller().writeVariable(m_name, 0, m_before); }
    BorrowedVariable(const BorrowedVariable&) = delete;
    BorrowedVariable& operator=(const BorrowedVariable&) = delete;

private:
    TourGuide& m_guide;
    QString m_name;
    double m_before;
};

#endif
