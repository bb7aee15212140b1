#include "AsciiText.h"

#include "TextTemplate.h"

#include <QTextCodec>

namespace AsciiText {

namespace {

template <typename Number>
bool take(Number& value, Number (QByteArray::*convert)(bool*, int) const, std::string_view word)
{
    bool isNumber = false;
    const Number number = (raw(word).*convert)(&isNumber, 10);
    if (isNumber)
        value = number;
    return isNumber;
}

std::size_t endOfWord(std::string_view line, std::size_t at, Between between)
{
    while (at < line.size() && !parts(between, line[at]))
        ++at;
    return at;
}

} // namespace

std::string_view trimmed(std::string_view line)
{
    constexpr std::string_view White = " \t\n\v\f\r";
    const std::size_t begin = line.find_first_not_of(White);
    if (begin == std::string_view::npos)
        return {};
    return line.substr(begin, line.find_last_not_of(White) + 1 - begin);
}

Words::Words(std::string_view line, Between between)
{
    for (std::size_t at = 0; at < line.size();) {
        const std::size_t end = endOfWord(line, at, between);
        if (end == at) {
            ++at;
            continue;
        }
        if (m_size < m_words.size())
            m_words[m_size] = line.substr(at, end - at);
        ++m_size;
        at = end;
    }
}

std::string_view firstWord(std::string_view line, Between between)
{
    std::size_t begin = 0;
    while (begin < line.size() && parts(between, line[begin]))
        ++begin;
    return line.substr(begin, endOfWord(line, begin, between) - begin);
}

bool equalsIgnoringCase(std::string_view text, std::string_view lowerCase)
{
    return text.size() == lowerCase.size() && TextTemplate::findIgnoringCase(text, lowerCase) == 0;
}

bool isAscii(const QByteArray& bytes)
{
    char all = 0; // without a way out of the loop, so that the compiler takes many bytes at a time
    for (const char c : bytes)
        all = static_cast<char>(all | c);
    return (all & 0x80) == 0;
}

bool isUtf8(const QByteArray& bytes)
{
    if (isAscii(bytes))
        return true;
    constexpr int Utf8Mib = 106;
    QTextCodec::ConverterState state;
    QTextCodec::codecForMib(Utf8Mib)->toUnicode(bytes.constData(), bytes.size(), &state);
    return state.invalidChars == 0 && state.remainingChars == 0;
}

QString text(std::string_view bytes)
{
    return QString::fromLatin1(bytes.data(), static_cast<int>(bytes.size()));
}

QByteArray bytes(const QString& text)
{
    QByteArray line = text.toLatin1();
    return line.replace('\n', ' ').replace('\r', ' ');
}

QByteArray raw(std::string_view bytes)
{
    return {bytes.data(), static_cast<int>(bytes.size())};
}

bool readNumber(std::string_view word, int& value)
{
    return take(value, &QByteArray::toInt, word);
}

bool readNumber(std::string_view word, unsigned& value)
{
    return take(value, &QByteArray::toUInt, word);
}

} // namespace AsciiText
