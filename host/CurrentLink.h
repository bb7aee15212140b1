#ifndef HOST_CURRENTLINK_H
#define HOST_CURRENTLINK_H

class ControllerLink;

/// The controller that the pendant is connected to, null before the program has made the connection. The
/// static interfaces of the platform have no other way to reach it.
ControllerLink* currentLink();

/// Connects the pendant to `link` (null disconnects): binds every variable that is known so far, takes the
/// values over and follows them. The caller keeps the ownership; a link that dies disconnects itself.
void setCurrentLink(ControllerLink* link);

#endif
