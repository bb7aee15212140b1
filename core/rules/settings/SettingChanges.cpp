#include "SettingChanges.h"

#include "ForeignLines.h"
#include "SettingReaders.h"

#include <QHash>

#include <algorithm>
#include <map>

namespace Settings {

namespace {

struct Place
{
    const Group* group;
    const Field* field;
};

/// The fields of a file in order, each under a key that its counterpart has too: titles and names, and a
/// number where they stand more than once.
class Fields
{
public:
    explicit Fields(const std::vector<Group>& groups)
    {
        QHash<QString, int> seen;
        for (const Group& group : groups) {
            for (const Field& field : group.fields) {
                const QString name = group.title + QChar(0) + field.name;
                const QString key = name + QChar(0) + QString::number(++seen[name]);
                m_order.push_back({key, {&group, &field}});
                m_places.insert(key, m_order.back().second);
            }
        }
    }

    const std::vector<std::pair<QString, Place>>& inOrder() const { return m_order; }
    const Field* find(const QString& key) const
    {
        const auto found = m_places.constFind(key);
        return found == m_places.constEnd() ? nullptr : found->field;
    }

private:
    std::vector<std::pair<QString, Place>> m_order;
    QHash<QString, Place> m_places;
};

Change changeOf(const QString& path, const Place& place, const QString& before, const QString& after)
{
    return {
        Change::Kind::Field,   path, place.group->role, place.group->title, place.field->name, before, after,
        place.field->isAddress};
}

void addFieldChanges(const QString& path, const Content& before, const Content& after,
                     std::vector<Change>& found)
{
    const Fields old(before.groups);
    const Fields now(after.groups);
    for (const auto& [key, place] : old.inOrder()) {
        const Field* counterpart = now.find(key);
        const QString value = counterpart ? counterpart->value : QString();
        if (value != place.field->value)
            found.push_back(changeOf(path, place, place.field->value, value));
    }
    for (const auto& [key, place] : now.inOrder()) {
        if (!old.find(key) && !place.field->value.isEmpty())
            found.push_back(changeOf(path, place, {}, place.field->value));
    }
}

/// How often each line stands in the one, less how often in the other.
std::map<QString, int> surplus(const QStringList& lines, const QStringList& others)
{
    std::map<QString, int> count;
    for (const QString& line : lines)
        ++count[line];
    for (const QString& line : others)
        --count[line];
    return count;
}

void addLineChanges(const QString& path, QStringList before, QStringList after, std::vector<Change>& found)
{
    std::map<QString, int> gone = surplus(before, after);
    for (const QString& line : before) {
        if (gone[line]-- > 0)
            found.push_back({Change::Kind::Line, path, nullptr, path, {}, line, {}});
    }
    std::map<QString, int> added = surplus(after, before);
    for (const QString& line : after) {
        if (added[line]-- > 0)
            found.push_back({Change::Kind::Line, path, nullptr, path, {}, {}, line});
    }
}

QStringList sortedLines(const QString& path, const QByteArray& bytes)
{
    QStringList lines = ForeignLines::of(path, bytes, nullptr);
    lines.sort();
    return lines;
}

QString stateText(const QByteArray& bytes, bool isUnderstood)
{
    if (bytes.isNull())
        return translated(QT_TRANSLATE_NOOP("Settings", "missing"));
    return isUnderstood ? translated(QT_TRANSLATE_NOOP("Settings", "there"))
                        : translated(QT_TRANSLATE_NOOP("Settings", "damaged"));
}

Change fileChange(const QString& path, const QString& before, const QString& after)
{
    return {Change::Kind::File, path, nullptr, path, {}, before, after};
}

QString valueText(const QString& value)
{
    return value.isEmpty() ? translated(QT_TRANSLATE_NOOP("Settings", "not set")) : value;
}

QString textOf(const Change& change)
{
    if (change.kind == Change::Kind::Line)
        return change.after.isEmpty() ? QLatin1String("- ") + change.before
                                      : QLatin1String("+ ") + change.after;
    return QStringLiteral("%1 %2 -> %3")
        .arg(change.field, valueText(change.before), valueText(change.after))
        .trimmed();
}

// The changes from `first` up to `last` are of one group.
template <typename Iterator>
Sentence sentenceOf(Iterator first, Iterator last)
{
    const bool movesOnly = std::all_of(first, last, [](const Change& change) { return change.isAddress; });
    QStringList parts;
    bool moves = false;
    for (auto change = first; change != last; ++change) {
        moves = moves || (change->isAddress && !movesOnly);
        if (!change->isAddress || movesOnly)
            parts << textOf(*change);
    }
    if (moves)
        parts << translated(QT_TRANSLATE_NOOP("Settings", "addresses move"));
    return {first->title, parts.join(QLatin1String(", ")), first->kind};
}

} // namespace

std::vector<Change> changes(const QString& path, const QByteArray& before, const QByteArray& after)
{
    if (before.isNull() == after.isNull() && before == after)
        return {};
    if (before.isNull() || after.isNull())
        return {fileChange(path, stateText(before, true), stateText(after, true))};
    const Content old = of(path, before);
    const Content now = of(path, after);
    std::vector<Change> found;
    if (rowOf(path) && old.isUnderstood != now.isUnderstood)
        return {fileChange(path, stateText(before, old.isUnderstood), stateText(after, now.isUnderstood))};
    addFieldChanges(path, old, now, found);
    addLineChanges(path, old.others, now.others, found);
    // What a reader passes over although it is of its own: a second entry, a line where none is looked for.
    if (found.empty() && sortedLines(path, before) != sortedLines(path, after))
        addLineChanges(path, ForeignLines::of(path, before, nullptr), ForeignLines::of(path, after, nullptr),
                       found);
    return found;
}

std::vector<Sentence> inWords(const std::vector<Change>& changes)
{
    std::vector<Sentence> sentences;
    for (auto first = changes.begin(); first != changes.end();) {
        auto last = first + 1;
        while (first->kind == Change::Kind::Field && last != changes.end() && last->kind == first->kind &&
               last->title == first->title && last->path == first->path)
            ++last;
        sentences.push_back(sentenceOf(first, last));
        first = last;
    }
    return sentences;
}

} // namespace Settings
