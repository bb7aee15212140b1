#ifndef PFBSLAVEFILE_H
#define PFBSLAVEFILE_H

#include <QByteArray>
#include <QString>

/// Record of pfb.cfg, the driver file of the PROFIBUS and PROFINET slave.
struct PfbSlaveConfig
{
    QString ProfibusAddress = QStringLiteral("1");         ///< node address, 0 to 125 on the page
    int ComAlarmEnabled = 0;                               ///< 1: a lost connection raises an alarm
    QString ProfibusEndian = QStringLiteral("BIG_ENDIAN"); ///< byte order of the process data
};

namespace PfbSlaveFile {

/// False when `content` is empty. A line that the file lacks leaves its field as it was.
/// `recognised`: whether any of its keywords is there.
bool read(const QByteArray& content, PfbSlaveConfig& record, bool* recognised = nullptr);

/// The file with the record's address, alarm and byte order. The free and the fixed variant get the byte
/// order alone: SlaveTextFile::rewritten.
QByteArray rewritten(const QByteArray& content, const PfbSlaveConfig& record);

} // namespace PfbSlaveFile

#endif
