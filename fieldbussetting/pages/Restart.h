#ifndef RESTART_H
#define RESTART_H

/// Restarting the robot for what was saved. Events are processed in all of it: the calling page may be gone
/// afterwards.
namespace Restart {

/// The pages differ in how they restart; each keeps its way.
enum class Way {
    AtOnce,     ///< whatever the service says, without a wait before
    WhenAllowed ///< only when the service allows it, after a second
};

/// How long a page that was confirmed waits before it restarts the controller.
constexpr unsigned BeforeRestartMs = 1000;

/// Whether the service allows a restart of the controller now.
bool isAllowed();

/// Restarts the controller, then the pendant.
void perform(Way way);

/// Watches the controller's clock for up to 10 readings, 600 ms apart each: true as soon as it stands still,
/// which says that the controller is going down.
bool controllerStopped();

} // namespace Restart

#endif
