#include "RoleSections.h"

#include "ByteOrders.h"
#include "ControllerWatch.h"
#include "Settings.h"
#include "StateText.h"

#include <QCoreApplication>

namespace RoleSections {

namespace {

QString translated(const char* text)
{
    return QCoreApplication::translate("RolePage", text);
}

// Whose page shows a group: a watch is told with its role and with the heartbeat.
bool belongs(const Settings::Group& group, const KnownFile& file, Subjects::Id subject)
{
    switch (subject) {
    case Subjects::Heartbeat:
        return file.id == FileId::Heartbeat;
    case Subjects::Profisafe:
        return file.id == FileId::ProfisafeDescription;
    case Subjects::Controller:
        return !group.role && file.id != FileId::Heartbeat && file.id != FileId::ProfisafeDescription;
    default:
        return group.role && Subjects::of(group.role->id) == subject;
    }
}

void addGroup(const Settings::Group& group, const KnownFile& file, RowTable::Rows& rows)
{
    rows.push_back({{translated(QT_TRANSLATE_NOOP("RolePage", "Settings: %1 (%2)"))
                         .arg(group.title, QLatin1String(file.name))},
                    nullptr,
                    true});
    for (const Settings::Field& field : group.fields) {
        rows.push_back({{field.name, field.value}});
        if (const ByteOrders::Example* example = ByteOrders::exampleOf(field.value))
            rows.push_back(
                {{QString(), translated(QT_TRANSLATE_NOOP("RolePage", "%1 goes out as %2"))
                                 .arg(QLatin1String(example->number), QLatin1String(example->bytes))}});
    }
}

} // namespace

RowTable::Rows settings(const ControllerWatch& watch, Subjects::Id subject)
{
    RowTable::Rows rows;
    RowTable::Rows common; // what every role has comes last
    for (const KnownFile& file : KnownFiles::all()) {
        if (!watch.configuration().isRead(file.id))
            continue;
        const bool isCommon = file.id == FileId::Heartbeat || file.id == FileId::Mapping ||
                              file.id == FileId::RoleList || file.id == FileId::BusSwitch;
        const QString name = QLatin1String(file.name);
        for (const Settings::Group& group : Settings::groupsOf(name, watch.configuration().bytes(file.id))) {
            if (belongs(group, file, subject) && !group.fields.empty())
                addGroup(group, file, isCommon ? common : rows);
        }
    }
    rows.insert(rows.end(), common.begin(), common.end());
    return rows;
}

RowTable::Rows files(const ControllerWatch& watch, Subjects::Id subject)
{
    RowTable::Rows rows;
    if (subject != Subjects::Controller)
        return rows;
    for (const KnownFile& file : KnownFiles::all()) {
        if (watch.files().isFailed(file.id))
            rows.push_back(
                {{QLatin1String(file.name),
                  translated(watch.files().bytes(file.id)
                                 ? QT_TRANSLATE_NOOP("RolePage", "could not be fetched the last time: "
                                                                 "what is shown of it is older")
                                 : QT_TRANSLATE_NOOP("RolePage", "could not be fetched"))},
                 StateText::signOf(FindingSeverity::Warning)});
    }
    if (!rows.empty())
        rows.insert(rows.begin(), {{translated(QT_TRANSLATE_NOOP("RolePage", "Files"))}, nullptr, true});
    return rows;
}

} // namespace RoleSections
