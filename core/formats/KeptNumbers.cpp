#include "KeptNumbers.h"

#include "AsciiText.h"

#include <algorithm>
#include <limits>

namespace {

bool readOtherForm(const QByteArray& word, int& value)
{
    bool isNumber = false;
    if (word.startsWith("0x") || word.startsWith("0X")) {
        const int hexadecimal = word.toInt(&isNumber, 16);
        if (isNumber)
            value = hexadecimal;
        return isNumber;
    }
    const double real = word.toDouble(&isNumber);
    constexpr double Least = std::numeric_limits<int>::min();
    constexpr double Most = std::numeric_limits<int>::max();
    if (!isNumber || !(real >= Least && real <= Most) || real != static_cast<int>(real))
        return false;
    value = static_cast<int>(real);
    return true;
}

} // namespace

void KeptNumbers::read(std::string_view key, std::string_view word, int& value)
{
    if (!AsciiText::readNumber(word, value))
        readOtherForm(AsciiText::raw(word), value);
    note(key, word, value);
}

// Of a key that stands twice the last counts.
void KeptNumbers::note(std::string_view key, std::string_view word, int value)
{
    if (!m_kept.empty())
        m_kept.erase(std::remove_if(m_kept.begin(), m_kept.end(),
                                    [key](const Kept& kept) { return key == AsciiText::view(kept.key); }),
                     m_kept.end());
    if (!AsciiText::isWritten(word, value))
        m_kept.push_back({AsciiText::raw(key), value, AsciiText::raw(word)});
}

QByteArray KeptNumbers::written(std::string_view key, int value) const
{
    const auto kept = std::find_if(m_kept.begin(), m_kept.end(), [key, value](const Kept& candidate) {
        return candidate.value == value && key == AsciiText::view(candidate.key);
    });
    return kept == m_kept.end() ? QByteArray::number(value) : kept->word;
}
