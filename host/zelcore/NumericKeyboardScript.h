#ifndef HOST_NUMERICKEYBOARDSCRIPT_H
#define HOST_NUMERICKEYBOARDSCRIPT_H

#include "DialogScript.h"
#include "NumericKeyboard.h"

/// A numeric keyboard that was shown.
struct ShownKeyboard
{
    QString caption;
    QString text; ///< the value that it opened on
    double minimum;
    double maximum;
    QString unit;
};

/// Types on numeric keyboards in place of a finger.
class NumericKeyboardScript
    : public DialogScript<NumericKeyboardScript, NumericKeyboard, QString, ShownKeyboard>
{
public:
    /// Types `text` key by key on the next keyboard and presses OK. When it is refused, or a key is not
    /// there, the reason is kept and the keyboard cancelled.
    static void enterNext(const QString& text) { answerNext(text); }
    /// Cancels the next keyboard.
    static void cancelNext() { answerNext(cancellation()); }
    /// Why entries were refused, the oldest first.
    static QStringList refusals() { return state().refusals; }

private:
    friend DialogScript;
    friend NumericKeyboard;
    static State& state();
    static QString cancellation();
    static void keyboardShown(NumericKeyboard* keyboard);
    static QString type(NumericKeyboard* keyboard, const QString& text);
};

#endif
