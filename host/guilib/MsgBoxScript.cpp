#include "MsgBoxScript.h"

#include <QPushButton>

MsgBoxScript::State& MsgBoxScript::state()
{
    static State instance;
    return instance;
}

void MsgBoxScript::boxShown(MsgBox* box, MsgBox::Buttons buttons)
{
    const ShownMsgBox record = {box->kind(), box->text(), box->isModal(), buttons};
    dialogShown(box, record, record.text, record.modal, [](MsgBox* asked, int answer) {
        const char* name = answer == MsgBox::Confirmed ? "confirmButton"
                           : answer == MsgBox::Second  ? "secondButton"
                                                       : nullptr;
        auto* button = name ? asked->findChild<QPushButton*>(QLatin1String(name)) : nullptr;
        if (button)
            button->click();
        else
            asked->reject();
    });
}
