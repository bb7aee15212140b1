#ifndef TESTS_MEMORYLINK_H
#define TESTS_MEMORYLINK_H

#include "ControllerLink.h"

#include <QMap>
#include <QSet>
#include <QStringList>

/// A controller that only remembers: files and variables in memory, and no behaviour.
class MemoryLink : public ControllerLink
{
public:
    struct Variable
    {
        VariableType type = VariableType::Bool;
        QVector<double> elements;
    };

    QMap<QString, QByteArray> files; ///< by path in lower case
    QMap<QString, Variable> variables;
    QSet<QString> subscribed; ///< "name[element]"
    QSet<QString> refused;    ///< "name[element]" that cannot be subscribed
    QStringList stored;       ///< paths in the order they were stored
    QList<QByteArray> next;   ///< what the next fetches bring, whatever the file holds
    int fetches = 0;
    bool transfersFail = false;
    bool running = false;
    bool servo = false;
    bool restartAllowed = true;
    bool up = true;
    int restarts = 0;

    static QString key(const QString& name, int element)
    {
        return QStringLiteral("%1[%2]").arg(name).arg(element);
    }

    void define(const QString& name, VariableType type, const QVector<double>& elements)
    {
        variables[name] = {type, elements};
    }

    /// The controller itself changes an element.
    void change(const QString& name, int element, double value)
    {
        variables[name].elements[element] = value;
        if (subscribed.contains(key(name, element)))
            emit variableChanged(name, element, value);
    }

    bool fetchFile(const QString& ctrlPath, QByteArray& content) override
    {
        if (transfersFail || !files.contains(ctrlPath.toLower()))
            return false;
        content = next.isEmpty() ? files.value(ctrlPath.toLower()) : next.takeFirst();
        ++fetches;
        return true;
    }
    bool storeFile(const QString& ctrlPath, const QByteArray& content) override
    {
        if (transfersFail)
            return false;
        stored << ctrlPath;
        files[ctrlPath.toLower()] = content;
        return true;
    }
    bool removeFile(const QString& ctrlPath) override { return files.remove(ctrlPath.toLower()) > 0; }

    bool bindVariable(const QString& name, VariableType type, int count) override
    {
        Variable& variable = variables[name];
        if (variable.elements.isEmpty())
            variable = {type, QVector<double>(count)};
        return variable.type == type && variable.elements.size() == count;
    }
    bool subscribe(const QString& name, int element, bool on) override
    {
        if (refused.contains(key(name, element)))
            return false;
        if (on)
            subscribed.insert(key(name, element));
        else
            subscribed.remove(key(name, element));
        return true;
    }
    double readVariable(const QString& name, int element) const override
    {
        return variables.value(name).elements.value(element);
    }
    void writeVariable(const QString& name, int element, double value) override
    {
        variables[name].elements[element] = value;
    }

    bool isRobotRunning() const override { return running; }
    bool isServoOn() const override { return servo; }
    bool isUp() const override { return up; }
    bool isRestartAllowed() const override { return restartAllowed; }
    void requestRestart() override { ++restarts; }
};

#endif
