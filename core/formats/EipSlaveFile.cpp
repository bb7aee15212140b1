#include "EipSlaveFile.h"

#include "AsciiText.h"
#include "SlaveTextFile.h"
#include "TextTemplate.h"

namespace {

struct Field
{
    const char* keyword;
    QString EipSlaveConfig::*value;
};

constexpr Field Fields[] = {
    {"IPADDR", &EipSlaveConfig::IPADDR},
    {"NETMASK", &EipSlaveConfig::NETMASK},
};

// Keyword and blanks go wherever they stand; tabs and a comment stay with the value, which then matches no
// port's address and is shown as unset.
QString valueOf(std::string_view line, const char* keyword)
{
    return AsciiText::text(line).remove(QLatin1String(keyword)).remove(QLatin1Char(' '));
}

} // namespace

bool EipSlaveFile::read(const QByteArray& content, EipSlaveConfig& record, bool* recognised)
{
    if (content.isEmpty())
        return false;
    bool anyKeyword = false;
    TextTemplate::forEachLine(content, [&](std::string_view whole, std::string_view) {
        const std::string_view line = AsciiText::trimmed(whole);
        anyKeyword = SlaveTextFile::readEndian(line, record.EipEndian) || anyKeyword;
        for (const Field& field : Fields) {
            if (TextTemplate::contains(line, field.keyword)) {
                record.*field.value = valueOf(line, field.keyword);
                anyKeyword = true;
            }
        }
        return true;
    });
    if (recognised)
        *recognised = anyKeyword;
    return true;
}

QByteArray EipSlaveFile::rewritten(const QByteArray& content, const EipSlaveConfig& record)
{
    std::vector<SlaveTextFile::OwnedLine> lines;
    for (const Field& field : Fields)
        lines.push_back(
            {field.keyword, QByteArray(field.keyword) + ' ' + AsciiText::bytes(record.*field.value)});
    return SlaveTextFile::rewritten(content, record.EipEndian, lines);
}
