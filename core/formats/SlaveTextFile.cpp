#include "SlaveTextFile.h"

#include "AsciiText.h"
#include "EndianNames.h"
#include "TextTemplate.h"

#include <algorithm>

using TextTemplate::contains;

namespace {

constexpr std::string_view RunAlways = "RUN_ALWAYS";

// The two "MIDDLE_" names end in these as well.
bool namesByteOrder(std::string_view line)
{
    return contains(line, "BIG_ENDIAN") || contains(line, "LITTLE_ENDIAN");
}

class LineWriter
{
public:
    LineWriter(const QString& endian, const std::vector<SlaveTextFile::OwnedLine>& ownedLines)
        : m_endian(AsciiText::bytes(endian))
        , m_ownedLines(ownedLines)
    {
    }

    bool operator()(std::string_view whole, QByteArray& out)
    {
        const std::string_view line = AsciiText::trimmed(whole);
        if (m_dropsByteOrder && namesByteOrder(line)) {
            m_dropsByteOrder = false;
            return false;
        }
        if (contains(line, RunAlways)) {
            m_dropsByteOrder = true;
            TextTemplate::keep(line, out);
            out.append('\n').append(m_endian);
            return true;
        }
        const auto owned =
            std::find_if(m_ownedLines.begin(), m_ownedLines.end(),
                         [line](const auto& candidate) { return contains(line, candidate.keyword); });
        if (owned == m_ownedLines.end())
            return TextTemplate::keep(line, out);
        out.append(owned->written);
        return true;
    }

private:
    QByteArray m_endian;
    const std::vector<SlaveTextFile::OwnedLine>& m_ownedLines;
    bool m_dropsByteOrder = false; // from RUN_ALWAYS to the old byte order
};

} // namespace

bool SlaveTextFile::readEndian(std::string_view line, QString& endian)
{
    const auto* name = std::find(EndianNames.begin(), EndianNames.end(), line);
    if (name == EndianNames.end())
        return false;
    endian = QLatin1String(*name);
    return true;
}

QByteArray SlaveTextFile::rewritten(const QByteArray& content, const QString& endian,
                                    const std::vector<OwnedLine>& ownedLines)
{
    return TextTemplate::rewritten(content, TextTemplate::LineEnds::LineFeed, LineWriter(endian, ownedLines));
}
