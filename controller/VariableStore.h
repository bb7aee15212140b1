#ifndef CONTROLLER_VARIABLESTORE_H
#define CONTROLLER_VARIABLESTORE_H

#include "ControllerLink.h"

#include <QHash>
#include <QObject>
#include <QString>
#include <QStringList>

#include <functional>
#include <vector>

/// The controller's named variables. They are all known from the start (one table in VariableStore.cpp); a
/// name that is not there is a mistake of whoever asks for it.
class VariableStore : public QObject
{
    Q_OBJECT

public:
    using Type = ControllerLink::VariableType;
    /// Called for every write of the pendant, also one that does not change the value.
    using Handler = std::function<void(int element, double value)>;

    VariableStore();

    /// Adds a variable with all elements at `initial`; false when the name is taken.
    bool define(const QString& name, Type type, int count = 1, double initial = 0.0);
    /// Whether there is such a variable, of this type and length.
    bool isKnown(const QString& name, Type type, int count) const;
    bool contains(const QString& name, int element = 0) const;
    /// In the order of definition.
    const QStringList& names() const { return m_names; }
    Type typeOf(const QString& name) const;
    int countOf(const QString& name) const;

    /// 0 for what is not there.
    double value(const QString& name, int element = 0) const;
    /// A change by the controller itself; no handler is called.
    void set(const QString& name, int element, double value);
    void set(const QString& name, double value) { set(name, 0, value); }
    /// A write by the pendant: the value is taken, then the handlers of the variable are called.
    void changedByPendant(const QString& name, int element, double value);

    /// Adds a handler; the name must be known.
    void watch(const QString& name, Handler handler);

signals:
    /// A value is another one now, whoever changed it. Comes at once.
    void changed(const QString& name, int element, double value);

private:
    struct Variable
    {
        Type type;
        std::vector<double> values;
        std::vector<Handler> handlers;
    };

    QHash<QString, Variable> m_variables;
    QStringList m_names;
};

#endif
