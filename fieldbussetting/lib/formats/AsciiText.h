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

/// A character a byte, so that `bytes` gives back any bytes that were read.
QString text(std::string_view bytes);

/// The bytes of a value that is written into a line. Line ends become blanks: a value never makes a line.
QByteArray bytes(const QString& text);

/// Whole decimal number of 32 bits with sign; `value` stays as it was when `word` is none.
void readNumber(std::string_view word, int& value);

} // namespace AsciiText

#endif
