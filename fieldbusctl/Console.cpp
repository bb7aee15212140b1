#include "Console.h"

#include <QJsonDocument>

#include <algorithm>
#include <cerrno>
#include <cstdio>
#include <sys/ioctl.h>
#include <unistd.h>

namespace {

constexpr int JsonVersion = 1;
constexpr int HeldBack = 64 * 1024; // bytes

bool mayColour()
{
    return isatty(STDOUT_FILENO) != 0 && qEnvironmentVariableIsEmpty("NO_COLOR") && qgetenv("TERM") != "dumb";
}

int terminalWidth()
{
    winsize size = {};
    return isatty(STDOUT_FILENO) != 0 && ioctl(STDOUT_FILENO, TIOCGWINSZ, &size) == 0 ? size.ws_col : 0;
}

const char* escapeOf(Console::Tone tone)
{
    switch (tone) {
    case Console::Tone::Heading:
        return "\x1b[1m";
    case Console::Tone::Faint:
        return "\x1b[2m";
    case Console::Tone::Good:
        return "\x1b[32m";
    case Console::Tone::Warning:
        return "\x1b[33m";
    case Console::Tone::Bad:
        return "\x1b[31m";
    case Console::Tone::Plain:
        break;
    }
    return "";
}

bool isControl(QChar c)
{
    const ushort code = c.unicode();
    return code < 0xa0 && (code >= 0x7f || (code < 0x20 && code != '\n' && code != '\t'));
}

// What stands in a file may hold anything; a terminal must not take it for a command.
QString harmless(QString text)
{
    if (std::any_of(text.cbegin(), text.cend(), isControl))
        std::replace_if(text.begin(), text.end(), isControl, QChar(QChar::ReplacementCharacter));
    return text;
}

} // namespace

Console::Console()
    : m_isColoured(mayColour())
    , m_width(terminalWidth())
{
}

QString Console::painted(Tone tone, const QString& text) const
{
    if (!m_isColoured || tone == Tone::Plain || text.isEmpty())
        return harmless(text);
    return QLatin1String(escapeOf(tone)) + harmless(text) + QLatin1String("\x1b[0m");
}

void Console::line(const QString& text)
{
    data(text.toUtf8() + '\n');
}

void Console::data(const QByteArray& bytes)
{
    m_pending += bytes;
    if (m_pending.size() >= HeldBack)
        flush();
}

void Console::json(const char* schema, const QJsonObject& content)
{
    data(jsonBytes(schema, content));
}

QByteArray Console::jsonBytes(const char* schema, QJsonObject content)
{
    content.insert(QStringLiteral("schema"), QLatin1String("fieldbusctl/") + QLatin1String(schema));
    content.insert(QStringLiteral("version"), JsonVersion);
    return QJsonDocument(content).toJson();
}

void Console::complain(const QString& text)
{
    const QByteArray bytes = "fieldbusctl: " + harmless(text).toUtf8() + '\n';
    fputs(bytes.constData(), stderr);
}

bool Console::flush()
{
    const char* next = m_pending.constData();
    auto left = static_cast<std::size_t>(m_pending.size());
    while (m_isWritten && left > 0) {
        const ssize_t written = ::write(STDOUT_FILENO, next, left);
        if (written > 0) {
            next += written;
            left -= static_cast<std::size_t>(written);
        } else if (errno != EINTR) {
            m_isWritten = false;
        }
    }
    m_pending.clear();
    return m_isWritten;
}
