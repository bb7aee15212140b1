#ifndef CONTROLLER_PARTNER_H
#define CONTROLLER_PARTNER_H

#include <QObject>
#include <QString>

struct ControllerParts;

/// A machine at the other end of one of the controller's links. It talks through real sockets, on this
/// machine's loopback interface only; its answers are hit by the faults of partners.
class Partner : public QObject
{
    Q_OBJECT

public:
    Partner(ControllerParts& parts, const char* name, int port)
        : m_parts(parts)
        , m_name(QLatin1String(name))
        , m_port(port)
    {
    }

    /// As a scenario calls it: "fins".
    const QString& name() const { return m_name; }
    /// Where it serves: 0 for any free port. Of a partner that calls the robot it is the robot's port. Counts
    /// from the next start on.
    int port() const { return m_port; }
    void setPort(int port) { m_port = port; }

    /// Comes up and lets the robot make the link, as if the operator had: where the robot calls, its settings
    /// name this partner. False when it cannot; the log says why.
    virtual bool start() = 0;
    virtual void stop() = 0;
    /// Has the robot's end of the link switched on, where it has a switch: at the start, and when the robot
    /// came up again.
    virtual void invite() {}
    virtual bool isRunning() const = 0;
    /// What it does, as a line of a list.
    virtual QString state() const = 0;

protected:
    ControllerParts& parts() const { return m_parts; }
    void note(const QString& text);
    /// Sets a variable as the pendant does.
    void ask(const char* variable);
    /// Changes texts of a settings file of the controller, in the root's child `group` unless that is empty;
    /// false when the file is not of that kind.
    bool changeSettings(const char* path, const char* root, const char* group,
                        std::initializer_list<std::pair<const char*, QByteArray>> texts);

private:
    ControllerParts& m_parts;
    QString m_name;
    int m_port;
};

#endif
