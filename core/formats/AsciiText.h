#ifndef ASCIITEXT_H
#define ASCIITEXT_H

#include <QByteArray>
#include <QString>

#include <string_view>
#include <vector>

/// Words and values of the controller's text files. Their encoding is not known: only ASCII is looked at, and
/// what else stands in a line is carried as the bytes it is.
namespace AsciiText {

constexpr std::string_view Blanks = " ";
constexpr std::string_view WhiteSpace = " \t\n\v\f\r";

/// Without leading and trailing ASCII white space.
std::string_view trimmed(std::string_view line);

/// The non-empty parts of `line` between any of `separators`.
std::vector<std::string_view> words(std::string_view line, std::string_view separators);

/// The first of them, empty without any.
std::string_view firstWord(std::string_view line, std::string_view separators);

/// Without regard to case; `lowerCase` is ASCII and given in lower case.
bool equalsIgnoringCase(std::string_view text, std::string_view lowerCase);

bool isUtf8(const QByteArray& bytes);

/// A character a byte, so that `bytes` gives back any bytes that were read.
QString text(std::string_view bytes);

/// The bytes of a value that is written into a line. Line ends become blanks: a value never makes a line.
QByteArray bytes(const QString& text);

/// The bytes as they are.
QByteArray raw(std::string_view bytes);

/// Whole decimal number of 32 bits; false when `word` is none, and `value` stays as it was.
bool readNumber(std::string_view word, int& value);
bool readNumber(std::string_view word, unsigned& value);

} // namespace AsciiText

#endif
