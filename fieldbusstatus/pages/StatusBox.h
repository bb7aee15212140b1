#ifndef STATUSBOX_H
#define STATUSBOX_H

#include "MsgBox.h"

/// The host's boxes, as the pages show them. Events are processed while one is shown: the page may be gone
/// afterwards.
namespace StatusBox {

enum class Answer { Dismissed, Confirmed, Second, Gone };

/// `isGrave`: the confirming button is kept from under a hand that only goes on pressing, where the host can.
Answer show(QWidget* page, MsgBox::Kind kind, const QString& text, MsgBox::Buttons buttons = MsgBox::Ok,
            bool isGrave = false);

/// Says that an import or export has to end first.
Answer showHeldUp(QWidget* page);

} // namespace StatusBox

#endif
