#ifndef STATUSCONTEXT_H
#define STATUSCONTEXT_H

class ControllerWatch;

/// What the pages look at. It outlives them.
struct StatusContext
{
    ControllerWatch& watch;
};

#endif
