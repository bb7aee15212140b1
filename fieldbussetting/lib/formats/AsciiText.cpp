#include "AsciiText.h"

namespace AsciiText {

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

QString text(std::string_view bytes)
{
    return QString::fromLatin1(bytes.data(), static_cast<int>(bytes.size()));
}

QByteArray bytes(const QString& text)
{
    QByteArray line = text.toLatin1();
    return line.replace('\n', ' ').replace('\r', ' ');
}

void readNumber(std::string_view word, int& value)
{
    bool isNumber = false;
    const int number = QByteArray(word.data(), static_cast<int>(word.size())).toInt(&isNumber);
    if (isNumber)
        value = number;
}

} // namespace AsciiText
