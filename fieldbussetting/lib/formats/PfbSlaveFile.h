#ifndef PFBSLAVEFILE_H
#define PFBSLAVEFILE_H

#include <QString>

/// Record of pfb.cfg, the driver file of the PROFIBUS and PROFINET slave.
struct PfbSlaveConfig
{
    QString ProfibusAddress = QStringLiteral("1");         ///< node address, 0 to 125 on the page
    int ComAlarmEnabled = 0;                               ///< 1: a lost connection raises an alarm
    QString ProfibusEndian = QStringLiteral("BIG_ENDIAN"); ///< byte order of the process data
};

#endif
