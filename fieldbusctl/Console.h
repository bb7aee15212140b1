#ifndef FIELDBUSCTL_CONSOLE_H
#define FIELDBUSCTL_CONSOLE_H

#include <QByteArray>
#include <QJsonObject>
#include <QString>

/// Where the program writes: data on the standard output, everything else on the standard error.
class Console
{
public:
    /// What a text is about; colours say it again on a terminal, and never alone.
    enum class Tone { Plain, Heading, Faint, Good, Warning, Bad };

    Console();

    /// Colour is used on a terminal that can show it and where NO_COLOR does not forbid it.
    bool isColoured() const { return m_isColoured; }
    /// Columns of the terminal; 0 when the output is none.
    int width() const { return m_width; }

    QString painted(Tone tone, const QString& text) const;

    void line(const QString& text = {});
    void data(const QByteArray& bytes);
    /// One JSON document, indented, with its schema ("fieldbusctl/diff") and version.
    void json(const char* schema, const QJsonObject& content);
    static QByteArray jsonBytes(const char* schema, QJsonObject content);

    /// To the standard error, behind the name of the program.
    static void complain(const QString& text);

    /// Writes what is still held back; false when something could not be written since the start.
    bool flush();

private:
    bool m_isColoured;
    int m_width;
    bool m_isWritten = true;
    QByteArray m_pending;
};

#endif
