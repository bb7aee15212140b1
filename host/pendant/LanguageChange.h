#ifndef PENDANT_LANGUAGECHANGE_H
#define PENDANT_LANGUAGECHANGE_H

#include "ApplicationInfo.h"

#include <QObject>
#include <QTimer>

#include <optional>

class ApplicationSlot;
class PendantWindow;

/// Changes the language of a running pendant. An application that is open is closed and made anew on the page
/// where it was; it says by properties of its objects, which another pendant ignores, what that takes:
/// "edited" is true where something was entered and not saved, "leavable" false while it must not be left.
class LanguageChange : public QObject
{
    Q_OBJECT

public:
    explicit LanguageChange(PendantWindow& window);

    /// Lets the operator choose a language, and asks again when edits would be lost.
    void choose();
    /// Without the first question.
    void change(const QString& code);

private:
    bool isAllowed(ApplicationSlot& application);
    void applicationLeft(const QString& className);
    void returnToPage();

    PendantWindow& m_window;
    QString m_code;            ///< wanted as soon as the application has left; empty: none
    ApplicationPage m_place;   ///< how the page of the application is told and shown
    std::optional<int> m_page; ///< where it was; none: it goes where it goes
    int m_firstPage = -1;      ///< on which it opened again
    int m_restMs = 0;          ///< for which it has been at rest
    int m_waitedMs = 0;
    QTimer m_returning;
};

#endif
