#include "TextTemplate.h"

#include <algorithm>

namespace TextTemplate {

std::size_t findIgnoringCase(std::string_view text, std::string_view needle)
{
    const auto lower = [](char c) { return c >= 'A' && c <= 'Z' ? static_cast<char>(c + ('a' - 'A')) : c; };
    if (text.size() < needle.size())
        return std::string_view::npos;
    const char first = needle.front();
    const std::size_t last = text.size() - needle.size();
    for (std::size_t at = 0; at <= last; ++at) {
        if (lower(text[at]) == first &&
            std::equal(needle.begin(), needle.end(), text.begin() + static_cast<std::ptrdiff_t>(at),
                       [lower](char a, char b) { return a == lower(b); }))
            return at;
    }
    return std::string_view::npos;
}

} // namespace TextTemplate
