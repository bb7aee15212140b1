#ifndef HOST_MSGBOXSCRIPT_H
#define HOST_MSGBOXSCRIPT_H

#include "DialogScript.h"
#include "MsgBox.h"

/// A message box that was shown.
struct ShownMsgBox
{
    int kind;
    QString text;
    bool modal; ///< false for one that is shown beside the running code
    MsgBox::Buttons buttons;
};

/// Answers message boxes by their result: 1 presses the confirming button, 2 the other one, anything else
/// dismisses the box; so does a button that the box does not have. A box that is not modal is recorded and
/// takes no answer.
class MsgBoxScript : public DialogScript<MsgBoxScript, MsgBox, int, ShownMsgBox>
{
    friend DialogScript;
    friend MsgBox;
    static State& state();
    static void boxShown(MsgBox* box, MsgBox::Buttons buttons);
};

#endif
