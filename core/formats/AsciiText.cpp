#include "AsciiText.h"

#include "TextTemplate.h"

#include <algorithm>
#include <charconv>
#include <cstring>

namespace AsciiText {

namespace {

// Digits that cannot leave the range; nearly every number is one.
constexpr std::size_t SafeDigits = 9;

bool isPlain(std::string_view word)
{
    return !word.empty() && word.size() <= SafeDigits &&
           std::all_of(word.begin(), word.end(), [](char c) { return c >= '0' && c <= '9'; });
}

template <typename Number>
bool take(Number& value, Number (QByteArray::*convert)(bool*, int) const, std::string_view word)
{
    if (isPlain(word)) {
        value = 0;
        for (const char digit : word)
            value = value * 10 + static_cast<Number>(digit - '0');
        return true;
    }
    // Signs and white space, as they have always been taken.
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

// Bytes of the character that `bytes` begin with; 0 when it is none, or not written the one way it may be.
std::size_t sizeOfCharacter(std::string_view bytes)
{
    const auto byteAt = [bytes](std::size_t i) { return static_cast<unsigned char>(bytes[i]); };
    const unsigned char lead = byteAt(0);
    if (lead < 0x80)
        return 1;
    const std::size_t size = lead >= 0xf0 ? 4 : lead >= 0xe0 ? 3 : 2;
    if (lead < 0xc2 || lead > 0xf4 || bytes.size() < size)
        return 0;
    for (std::size_t i = 1; i < size; ++i) {
        if (byteAt(i) >> 6 != 2)
            return 0;
    }
    // What fewer bytes can say, surrogates, and what is beyond the last character.
    const unsigned char second = byteAt(1);
    const bool isOut = (lead == 0xe0 && second < 0xa0) || (lead == 0xed && second > 0x9f) ||
                       (lead == 0xf0 && second < 0x90) || (lead == 0xf4 && second > 0x8f);
    return isOut ? 0 : size;
}

} // namespace

std::string_view trimmed(std::string_view line)
{
    while (!line.empty() && parts(Between::WhiteSpace, line.front()))
        line.remove_prefix(1);
    while (!line.empty() && parts(Between::WhiteSpace, line.back()))
        line.remove_suffix(1);
    return line;
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

std::size_t find(std::string_view bytes, std::string_view text, std::size_t from)
{
    if (from > bytes.size())
        return std::string_view::npos;
    const void* found = ::memmem(bytes.data() + from, bytes.size() - from, text.data(), text.size());
    return found ? static_cast<std::size_t>(static_cast<const char*>(found) - bytes.data())
                 : std::string_view::npos;
}

bool isAscii(std::string_view bytes)
{
    char all = 0; // without a way out of the loop, so that the compiler takes many bytes at a time
    for (const char c : bytes)
        all = static_cast<char>(all | c);
    return (all & 0x80) == 0;
}

bool isUtf8(std::string_view bytes)
{
    if (isAscii(bytes))
        return true;
    for (std::size_t at = 0; at < bytes.size();) {
        const std::size_t size = sizeOfCharacter(bytes.substr(at));
        if (size == 0)
            return false;
        at += size;
    }
    return true;
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

bool isWritten(std::string_view word, int value)
{
    std::array<char, 12> digits; // a sign and ten of them
    const auto written = std::to_chars(digits.begin(), digits.end(), value);
    return word == std::string_view(digits.data(), static_cast<std::size_t>(written.ptr - digits.data()));
}

} // namespace AsciiText
