#include "PfbSlaveFile.h"

#include "AsciiText.h"
#include "SlaveTextFile.h"
#include "TextTemplate.h"

namespace {

constexpr std::string_view AddressKeyword = "PROFIBUS_ADDRESS";
constexpr std::string_view AlarmKeyword = "DISABLE_COM_ALARM";

QByteArray addressLine(const PfbSlaveConfig& record)
{
    return QByteArray(AddressKeyword.data()) + ' ' + AsciiText::bytes(record.ProfibusAddress) +
           "    \t;Profibus node number (exclude dip-switch set)";
}

// The keyword switches the alarm off; the alarm is on when it is commented out.
QByteArray alarmLine(const PfbSlaveConfig& record)
{
    return QByteArray(record.ComAlarmEnabled == 0 ? "" : ";") + AlarmKeyword.data();
}

void readAlarm(std::string_view line, PfbSlaveConfig& record)
{
    if (line == AlarmKeyword)
        record.ComAlarmEnabled = 0;
    else if (line.front() == ';' && line.substr(1) == AlarmKeyword)
        record.ComAlarmEnabled = 1;
}

} // namespace

// Ends at the later of the address and the alarm line: a byte order below both is not read.
bool PfbSlaveFile::read(const QByteArray& content, PfbSlaveConfig& record, bool* recognised)
{
    if (content.isEmpty())
        return false;
    bool addressSeen = false;
    bool alarmSeen = false;
    bool endianSeen = false;
    TextTemplate::forEachLine(content, [&](std::string_view whole, std::string_view) {
        const std::string_view line = AsciiText::trimmed(whole);
        endianSeen = SlaveTextFile::readEndian(line, record.ProfibusEndian) || endianSeen;
        if (TextTemplate::contains(line, AddressKeyword)) {
            const AsciiText::Words words(line, AsciiText::Between::Blanks);
            if (words.size() > 1)
                record.ProfibusAddress = AsciiText::text(words[1]);
            addressSeen = true;
        } else if (TextTemplate::contains(line, AlarmKeyword)) {
            readAlarm(line, record);
            alarmSeen = true;
        }
        return !(addressSeen && alarmSeen);
    });
    if (recognised)
        *recognised = addressSeen || alarmSeen || endianSeen;
    return true;
}

QByteArray PfbSlaveFile::rewritten(const QByteArray& content, const PfbSlaveConfig& record)
{
    return SlaveTextFile::rewritten(
        content, record.ProfibusEndian,
        {{AddressKeyword, addressLine(record)}, {AlarmKeyword, alarmLine(record)}});
}
