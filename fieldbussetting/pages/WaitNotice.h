#ifndef WAITNOTICE_H
#define WAITNOTICE_H

#include "MsgBox.h"

#include <QPointer>

/// A box without buttons that a page shows while it waits. It is the page's child and never outlives it.
class WaitNotice
{
public:
    WaitNotice() = default;
    ~WaitNotice() { close(); }
    WaitNotice(const WaitNotice&) = delete;
    WaitNotice& operator=(const WaitNotice&) = delete;

    void open(QWidget* page, const QString& text);
    void close();

private:
    QPointer<MsgBox> m_box;
};

#endif
