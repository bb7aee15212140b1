#include "DevicesInUse.h"

bool isDeviceInUse(const QByteArray& overrideCfg, const QByteArray& name)
{
    bool inUse = false;
    for (const QByteArray& line : overrideCfg.split('\n')) {
        const QByteArray upper = line.trimmed().toUpper();
        const QByteArray directive = upper.startsWith(';') ? upper.mid(1).trimmed() : upper;
        if (!directive.startsWith("ECAT_SLAVE_OFF") || !directive.contains(name))
            continue;
        if (directive.size() == upper.size())
            return false;
        inUse = true;
    }
    return inUse;
}
