#ifndef OBSERVEDVARIABLES_H
#define OBSERVEDVARIABLES_H

#include "zelCustomRvar.h"

#include <QHash>
#include <QString>

#include <memory>
#include <vector>

/// The controller's variables as this application follows them, by handles of its own. They are read only.
class ObservedVariables
{
public:
    struct Change
    {
        const QString* name; ///< an element of a vector is "ifidbus.dnm_status[3]"
        int before;
        int now;
        bool isFirst; ///< `before` says nothing: it was not known
    };

    ObservedVariables();
    ~ObservedVariables();
    ObservedVariables(const ObservedVariables&) = delete;
    ObservedVariables& operator=(const ObservedVariables&) = delete;

    /// Subscribes what the controller offers. What it does not offer stays unknown.
    void subscribe();

    /// What has changed since the last call. It costs no allocation while nothing has.
    const std::vector<Change>& poll();

    /// The values that are known, by name.
    const QHash<QString, int>& values() const { return m_values; }

    /// Whether the controller tells its time, which stands still while it is down.
    bool hasClock() const { return m_hasClock; }
    double clock() const;

    class Source; ///< a handle, whatever its type

private:
    struct Element
    {
        Source* source;
        int index;
        QString name;
        int value;
        bool isKnown;
    };

    std::vector<std::unique_ptr<Source>> m_sources;
    std::vector<Element> m_elements; ///< of the offered ones
    std::vector<Change> m_changes;
    QHash<QString, int> m_values;
    zelCustomRvarReal m_clock;
    bool m_hasClock = false;
};

#endif
