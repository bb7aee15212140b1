#include "WaitNotice.h"

void WaitNotice::open(QWidget* page, const QString& text)
{
    close();
    m_box = new MsgBox(MsgBox::Information, text, page, MsgBox::NoButton);
    m_box->show();
}

// Deleted later: the box may be closed from one of its own events.
void WaitNotice::close()
{
    if (!m_box)
        return;
    m_box->close();
    m_box->deleteLater();
    m_box.clear();
}
