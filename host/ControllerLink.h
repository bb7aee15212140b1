#ifndef HOST_CONTROLLERLINK_H
#define HOST_CONTROLLERLINK_H

#include <QByteArray>
#include <QObject>
#include <QString>

/// Everything that the desktop pendant needs of a robot controller: files, variables and the robot's state.
/// Another implementation would be a test double, or a link over a wire.
///
/// A variable element travels as a double: Bool as 0 or 1, Int as a whole number of 32 bits with sign, Real
/// as it is. All calls come from the GUI thread.
class ControllerLink : public QObject
{
    Q_OBJECT

public:
    enum class VariableType { Bool, Int, Real };
    Q_ENUM(VariableType)

    explicit ControllerLink(QObject* parent = nullptr)
        : QObject(parent)
    {
    }

    /// Reads a whole controller file; false (and `content` untouched) when it cannot be had.
    virtual bool fetchFile(const QString& ctrlPath, QByteArray& content) = 0;
    /// Replaces a controller file in one step; false leaves the old one.
    virtual bool storeFile(const QString& ctrlPath, const QByteArray& content) = 0;
    virtual bool removeFile(const QString& ctrlPath) = 0;

    /// Makes a variable of `count` elements known by name; false when the controller has it with another
    /// type or length. Binding again is allowed.
    virtual bool bindVariable(const QString& name, VariableType type, int count) = 0;
    /// Asks for (or ends) `variableChanged` of one element; false when it is not known. Asking again is
    /// allowed and not counted: one end is enough.
    virtual bool subscribe(const QString& name, int element, bool on) = 0;
    virtual double readVariable(const QString& name, int element = 0) const = 0;
    virtual void writeVariable(const QString& name, int element, double value) = 0;

    virtual bool isRobotRunning() const = 0;
    virtual bool isServoOn() const = 0;
    /// Whether the controller answers at all; false while it restarts.
    virtual bool isUp() const = 0;
    /// Whether the controller may be restarted now.
    virtual bool isRestartAllowed() const = 0;
    /// Asks the controller to restart; it goes down on a later event-loop turn.
    virtual void requestRestart() = 0;

signals:
    /// A subscribed element has a new value. Never emitted from inside a call of this interface.
    void variableChanged(const QString& name, int element, double value);
    /// Running, servo, or up changed.
    void stateChanged();
};

#endif
