#include "JsonRows.h"

#include "Console.h"

#include <QJsonArray>
#include <QJsonDocument>

namespace {

constexpr int RowDepth = 8; // blanks before a row; QJsonDocument takes four a level

} // namespace

// An empty array stands as its two brackets, a line each. In a text no line begins: it is escaped there.
JsonRows::JsonRows(Console& console, const char* schema, QJsonObject content, const char* array)
    : m_console(console)
{
    content.insert(QLatin1String(array), QJsonArray());
    const QByteArray whole = Console::jsonBytes(schema, content);
    const QByteArray opening = QByteArray("\n    \"") + array + "\": [\n";
    const int split = whole.indexOf(opening) + opening.size();
    m_console.data(whole.left(split));
    m_behind = whole.mid(split);
}

JsonRows::~JsonRows()
{
    m_console.data(m_isFirst ? m_behind : '\n' + m_behind);
}

QByteArray JsonRows::bytesOf(const QJsonObject& row)
{
    const QByteArray indent = '\n' + QByteArray(RowDepth, ' ');
    return indent.mid(1) + QJsonDocument(row).toJson().chopped(1).replace('\n', indent);
}

void JsonRows::add(const QByteArray& row)
{
    m_console.data(m_isFirst ? row : ",\n" + row);
    m_isFirst = false;
}
