#ifndef TEXTTEMPLATE_H
#define TEXTTEMPLATE_H

#include <QByteArray>

#include <string_view>

/// Line-by-line rewriting of the controller's text files. A file is bytes in any encoding; only ASCII is
/// looked at. A writer never makes a file from scratch: it takes the controller's present one as a template
/// and replaces the lines that it owns.
namespace TextTemplate {

/// What ends a written line: what ended it in the template (a last line without an end gets a line feed), or
/// always a line feed.
enum class LineEnds { Kept, LineFeed };

/// Walks the lines of `content`; `visit(line, end)` gets a line without its end, and the end ("\n", "\r\n" or
/// empty). Stops when `visit` answers false.
template <typename Visitor>
void forEachLine(const QByteArray& content, Visitor visit)
{
    const std::string_view text(content.constData(), static_cast<std::size_t>(content.size()));
    std::size_t begin = 0;
    while (begin < text.size()) {
        const std::size_t feed = text.find('\n', begin);
        const std::size_t next = feed == std::string_view::npos ? text.size() : feed + 1;
        std::size_t end = feed == std::string_view::npos ? text.size() : feed;
        if (end > begin && end < text.size() && text[end - 1] == '\r')
            --end;
        if (!visit(text.substr(begin, end - begin), text.substr(end, next - end)))
            return;
        begin = next;
    }
}

/// The lines of `content`, rewritten: `rewrite(line, out)` appends to `out` what stands instead of the line,
/// without a line end; false drops the line.
template <typename Rewriter>
QByteArray rewritten(const QByteArray& content, LineEnds ends, Rewriter rewrite)
{
    QByteArray out;
    out.reserve(content.size() + content.size() / 8 + 256);
    forEachLine(content, [&](std::string_view line, std::string_view end) {
        if (!rewrite(line, out))
            return true;
        if (ends == LineEnds::Kept && !end.empty())
            out.append(end.data(), static_cast<int>(end.size()));
        else
            out.append('\n');
        return true;
    });
    return out;
}

/// Appends a line as it is; the rewriter's answer for a line that is not its own.
inline bool keep(std::string_view line, QByteArray& out)
{
    out.append(line.data(), static_cast<int>(line.size()));
    return true;
}

/// Position of the ASCII text `needle`, which is given in lower case, in `text` without regard to case.
std::size_t findIgnoringCase(std::string_view text, std::string_view needle);

inline bool containsIgnoringCase(std::string_view text, std::string_view needle)
{
    return findIgnoringCase(text, needle) != std::string_view::npos;
}

inline bool contains(std::string_view text, std::string_view needle)
{
    return text.find(needle) != std::string_view::npos;
}

} // namespace TextTemplate

#endif
