#ifndef FIELDBUSCTL_JSONROWS_H
#define FIELDBUSCTL_JSONROWS_H

#include <QByteArray>
#include <QJsonObject>

class Console;

/// A JSON document with an array of many rows, which are printed as they come and not gathered. Prints what
/// `Console::json` would of the whole.
class JsonRows
{
public:
    /// Prints what stands before the rows. `array` is their key, `content` holds the other ones.
    JsonRows(Console& console, const char* schema, QJsonObject content, const char* array);
    /// Prints what stands behind them.
    ~JsonRows();
    JsonRows(const JsonRows&) = delete;
    JsonRows& operator=(const JsonRows&) = delete;

    /// A row as it stands in the document; any thread may make one.
    static QByteArray bytesOf(const QJsonObject& row);
    void add(const QByteArray& row);

private:
    Console& m_console;
    QByteArray m_behind;
    bool m_isFirst = true;
};

#endif
