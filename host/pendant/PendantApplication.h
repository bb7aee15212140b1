#ifndef PENDANT_PENDANTAPPLICATION_H
#define PENDANT_PENDANTAPPLICATION_H

#include <QApplication>

/// Counts how deep event deliveries are nested. Qt's own deferred deletion is not enough for the pendant:
/// an application may wait inside one of its slots, and an object that is let go during that wait would be
/// deleted by the waiting loop, with the slot still to return into it. QThread::loopLevel() does not tell
/// either, because a wait by processEvents() does not raise it.
class PendantApplication : public QApplication
{
    Q_OBJECT

public:
    PendantApplication(int& argc, char** argv);

    bool notify(QObject* receiver, QEvent* event) override;

    /// Event deliveries of the GUI thread that have not returned. 1 inside a slot of a timer means that
    /// the outermost loop fired it: no other slot is on the stack.
    static int depth();
};

#endif
