#ifndef SETTINGCELLS_H
#define SETTINGCELLS_H

#include "SettingReaders.h"

/// A record's fields as settings: a row a field.
namespace Settings {

template <typename Record>
struct Cell
{
    const char* name; ///< of the translation context "Settings"
    QString (*value)(const Record&);
};

template <typename Record, std::size_t Size>
void append(Group& group, const Cell<Record> (&cells)[Size], const Record& record)
{
    for (const Cell<Record>& cell : cells)
        group.fields.push_back({translated(cell.name), cell.value(record)});
}

/// Reads a file whose record is all of one role. `blank` is what a file that says nothing leaves.
template <typename Record, std::size_t Size>
std::optional<std::vector<Group>> ofRecord(RoleId role, bool (*read)(const QByteArray&, Record&, bool*),
                                           const QByteArray& bytes, const Cell<Record> (&cells)[Size],
                                           Record blank = {})
{
    if (!read(bytes, blank, nullptr))
        return std::nullopt;
    Group group = groupOf(role);
    append(group, cells, blank);
    return std::vector<Group>{group};
}

/// A whole number that a file may lack; -1 says so.
inline QString numberText(int number)
{
    return number == -1 ? QString() : QString::number(number);
}

/// One of `names` behind its index; the index alone when it has none.
template <std::size_t Size>
QString choiceText(const QString& index, const char* const (&names)[Size])
{
    bool isNumber = false;
    const int number = index.toInt(&isNumber);
    if (!isNumber || number < 0 || number >= static_cast<int>(Size))
        return index;
    return index + QLatin1Char(' ') + QLatin1String(names[number]);
}

} // namespace Settings

#endif
