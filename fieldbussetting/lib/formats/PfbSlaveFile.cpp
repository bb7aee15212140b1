#include "PfbSlaveFile.h"

#include "AsciiText.h"
#include "FileLocations.h"
#include "HandleBusFiles.h"
#include "SlaveTextFile.h"
#include "TextTemplate.h"
#include "WholeFile.h"

#include <QFile>

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

// Ends at the later of the address and the alarm line: a byte order below both is not read. The local copy is
// used up by the read, so that the next load fetches the controller's file again.
bool HandleBusFiles::readPfbCfgFile(const QString& path, PfbSlaveConfig& record)
{
    QByteArray content;
    if (!WholeFile::read(path, content) || content.isEmpty())
        return false;
    bool addressSeen = false;
    bool alarmSeen = false;
    TextTemplate::forEachLine(content, [&](std::string_view whole, std::string_view) {
        const std::string_view line = AsciiText::trimmed(whole);
        SlaveTextFile::readEndian(line, record.ProfibusEndian);
        if (TextTemplate::contains(line, AddressKeyword)) {
            const std::vector<std::string_view> words = AsciiText::words(line, AsciiText::Blanks);
            if (words.size() > 1)
                record.ProfibusAddress = AsciiText::text(words[1]);
            addressSeen = true;
        } else if (TextTemplate::contains(line, AlarmKeyword)) {
            readAlarm(line, record);
            alarmSeen = true;
        }
        return !(addressSeen && alarmSeen);
    });
    QFile::remove(path);
    return true;
}

bool HandleBusFiles::writePfbCfgFile(const QString& path, const PfbSlaveConfig& record)
{
    return SlaveTextFile::rewrite(path, {"/pfb_temp.cfg", FileLocations::of(ConfigFile::PfbSlave).controller},
                                  record.ProfibusEndian,
                                  {{AddressKeyword, addressLine(record)}, {AlarmKeyword, alarmLine(record)}});
}

bool HandleBusFiles::writePfbFreeFixFile(const QString& path, const QString& ctrlPath,
                                         const PfbSlaveConfig& record)
{
    return SlaveTextFile::rewrite(path, {"/pfb_freeOrFix.cfg", ctrlPath}, record.ProfibusEndian, {});
}
