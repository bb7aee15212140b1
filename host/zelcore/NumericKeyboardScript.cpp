#include "NumericKeyboardScript.h"

#include <QPushButton>

NumericKeyboardScript::State& NumericKeyboardScript::state()
{
    static State instance;
    return instance;
}

// A text that nobody can type.
QString NumericKeyboardScript::cancellation()
{
    return QStringLiteral("\x1b");
}

void NumericKeyboardScript::keyboardShown(NumericKeyboard* keyboard)
{
    const NumericEntry& entry = keyboard->entry();
    const ShownKeyboard record = {keyboard->caption(), entry.text(), entry.minimum(), entry.maximum(),
                                  keyboard->unit()};
    dialogShown(keyboard, record, QStringLiteral("keyboard %1").arg(record.caption), true,
                [](NumericKeyboard* asked, const QString& text) {
                    const QPointer<NumericKeyboard> alive(asked);
                    const QString refusal = text == cancellation() ? QString() : type(asked, text);
                    if (!refusal.isEmpty())
                        state().refusals.append(refusal);
                    if (alive && alive->isVisible())
                        alive->reject();
                });
}

// Empty when the text was taken, else why not.
QString NumericKeyboardScript::type(NumericKeyboard* keyboard, const QString& text)
{
    for (const QChar c : text) {
        QPushButton* key = keyboard->button(c.toUpper().toLatin1());
        if (!key)
            return QStringLiteral("no key %1").arg(c);
        key->click();
    }
    const QPointer<NumericKeyboard> alive(keyboard);
    keyboard->accept();
    return alive ? alive->refusal() : QString();
}
