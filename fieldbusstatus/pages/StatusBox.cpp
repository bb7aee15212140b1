#include "StatusBox.h"

#include <QCoreApplication>
#include <QPointer>

StatusBox::Answer StatusBox::show(QWidget* page, MsgBox::Kind kind, const QString& text,
                                  MsgBox::Buttons buttons, bool isGrave)
{
    const QPointer<QWidget> alive(page);
    const QPointer<MsgBox> box(new MsgBox(kind, text, page, buttons));
    if (isGrave)
        box->setProperty("grave", true);
    const int result = box->exec();
    delete box.data();
    if (!alive)
        return Answer::Gone;
    return result == MsgBox::Confirmed ? Answer::Confirmed
           : result == MsgBox::Second  ? Answer::Second
                                       : Answer::Dismissed;
}

StatusBox::Answer StatusBox::showHeldUp(QWidget* page)
{
    return show(page, MsgBox::Information,
                QCoreApplication::translate("StatusBox",
                                            "The last import or export is still coming to its end.\n"
                                            "Please try again in a moment."));
}
