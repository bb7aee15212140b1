#ifndef TESTS_LAYOUTAUDIT_H
#define TESTS_LAYOUTAUDIT_H

#include <QImage>
#include <QSet>
#include <QStringList>
#include <QWidget>

/// Looks at windows as they stand on the screen and notes what a person could not read, hit or find: texts
/// wider than their widgets, widgets over each other, targets too small or too near, pale texts and signs,
/// and what takes the focus without a name or without showing it. Everything is told once.
class LayoutAudit
{
public:
    /// What the pages' files, not the layout, are answerable for, or what has to be as it is.
    struct Exception
    {
        const char* fault;  ///< of the words that begin a note: "text", "target", ...
        const char* widget; ///< object name, class name or "class/object" of the widget or one above it
        const char* reason;
    };

    explicit LayoutAudit(bool withFocus)
        : m_withFocus(withFocus)
    {
    }

    /// `window` as it is shown now; `place` says in a note where that was.
    void look(QWidget& window, const QString& place);
    const QStringList& notes() const { return m_notes; }

private:
    void note(const char* fault, const QWidget& widget, const QString& what);
    void lookAtText(QWidget& widget);
    void lookAtCells(QWidget& widget);
    void lookAtTarget(QWidget& widget);
    void lookAtName(QWidget& widget);
    void lookAtContrast(QWidget& widget, const QImage& picture);
    void lookAtFocus(QWidget& widget);
    void lookAtPlaces(const QList<QWidget*>& widgets, QWidget& window);

    bool m_withFocus;
    QString m_place;
    QSet<QString> m_seen;
    QSet<QString> m_focused; ///< whose mark was looked at
    QStringList m_notes;
};

#endif
