#ifndef STATUSCONTEXT_H
#define STATUSCONTEXT_H

class ControllerWatch;
class HistoryRecorder;

/// What the pages look at. It outlives them.
struct StatusContext
{
    ControllerWatch& watch;
    HistoryRecorder& history;
};

#endif
