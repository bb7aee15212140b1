#ifndef HOST_VARIABLECONTEXT_H
#define HOST_VARIABLECONTEXT_H

#include <QObject>

/// Tells the application loader that the shown page changed and its variables are to be subscribed anew.
class VariableContext : public QObject
{
    Q_OBJECT

public:
    static VariableContext& instance();

signals:
    void switched();

private:
    VariableContext() = default;
};

#endif
