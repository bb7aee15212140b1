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

} // namespace

std::string_view trimmed(std::string_view line)
{
    const std::size_t begin = line.find_first_not_of(WhiteSpace);
    if (begin == std::string_view::npos)
        return {};
    return line.substr(begin, line.find_last_not_of(WhiteSpace) + 1 - begin);
}

std::vector<std::string_view> words(std::string_view line, std::string_view separators)
{
    std::vector<std::string_view> found;
    std::size_t begin = line.find_first_not_of(separators);
    while (begin != std::string_view::npos) {
        const std::size_t end = line.find_first_of(separators, begin);
        found.push_back(line.substr(begin, end - begin));
        begin = line.find_first_not_of(separators, end);
    }
    return found;
}

std::string_view firstWord(std::string_view line, std::string_view separators)
{
    const std::size_t begin = line.find_first_not_of(separators);
    if (begin == std::string_view::npos)
        return {};
    return line.substr(begin, line.find_first_of(separators, begin) - begin);
}

bool equalsIgnoringCase(std::string_view text, std::string_view lowerCase)
{
    return text.size() == lowerCase.size() && TextTemplate::findIgnoringCase(text, lowerCase) == 0;
}

bool isUtf8(const QByteArray& bytes)
{
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
