#ifndef CONTROLLER_PANEL_FINSPAGEACCESS_H
#define CONTROLLER_PANEL_FINSPAGEACCESS_H

#include <functional>

/// The way to the pendant's page of the FINS client, which its menu does not offer. Whoever knows the pendant
/// fills it in; empty, the panel offers no way.
struct FinsPageAccess
{
    std::function<bool()> isAtHand; ///< whether the page could be shown now
    std::function<void()> show;
};

#endif
