#ifndef HOST_TIMESCALE_H
#define HOST_TIMESCALE_H

/// How much faster than real time the pendant waits: 10 turns a wait of a second into 100 ms. 1 at start.
double timeScale();
/// A scale that is not above 0 is ignored.
void setTimeScale(double scale);

#endif
