#ifndef ASCIITEXT_H
#define ASCIITEXT_H

#include <QByteArray>
#include <QString>

#include <array>
#include <string_view>

/// Words and values of the controller's text files. Their encoding is not known: only ASCII is looked at, and
/// what else stands in a line is carried as the bytes it is.
namespace AsciiText {

/// What parts two words.
enum class Between { Blanks, WhiteSpace };

constexpr bool parts(Between between, char c)
{
    return c == ' ' || (between == Between::WhiteSpace && c >= '\t' && c <= '\r');
}

/// Without leading and trailing ASCII white space.
std::string_view trimmed(std::string_view line);

/// The words of a line. All are counted, the first ones are at hand; what is not there is empty. Takes no
/// memory: a reader makes one for each line of a file.
class Words
{
public:
    Words(std::string_view line, Between between);

    std::size_t size() const { return m_size; }
    std::string_view operator[](std::size_t index) const
    {
        return index < m_words.size() ? m_words[index] : std::string_view();
    }

private:
    std::array<std::string_view, 4> m_words;
    std::size_t m_size = 0;
};

/// The first word, empty without any.
std::string_view firstWord(std::string_view line, Between between);

/// Without regard to case; `lowerCase` is ASCII and given in lower case.
bool equalsIgnoringCase(std::string_view text, std::string_view lowerCase);

/// The bytes to search in: far quicker than with the functions of the array.
inline std::string_view view(const QByteArray& bytes)
{
    return {bytes.constData(), static_cast<std::size_t>(bytes.size())};
}

/// Where `text` stands from `from` on, as `std::string_view::find`. That one looks at each byte that the text
/// begins with, and every line of a file begins with the same.
std::size_t find(std::string_view bytes, std::string_view text, std::size_t from = 0);

bool isAscii(std::string_view bytes);
bool isUtf8(std::string_view bytes);

/// A character a byte, so that `bytes` gives back any bytes that were read.
QString text(std::string_view bytes);

/// The bytes of a value that is written into a line. Line ends become blanks: a value never makes a line.
QByteArray bytes(const QString& text);

/// The bytes as they are.
QByteArray raw(std::string_view bytes);

/// Whole decimal number of 32 bits; false when `word` is none, and `value` stays as it was.
bool readNumber(std::string_view word, int& value);
bool readNumber(std::string_view word, unsigned& value);

/// Whether `word` is how `value` is written here: decimal, no zero or sign too much.
bool isWritten(std::string_view word, int value);

} // namespace AsciiText

#endif
