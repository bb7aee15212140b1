#include "HandleBusFiles.h"

HandleBusFiles* HandleBusFiles::getInstance()
{
    static HandleBusFiles instance;
    return &instance;
}

HandleBusFiles::HandleBusFiles()
    : m_endianNames{QStringLiteral("LITTLE_ENDIAN"), QStringLiteral("MIDDLE_LITTLE_ENDIAN"),
                    QStringLiteral("BIG_ENDIAN"), QStringLiteral("MIDDLE_BIG_ENDIAN")}
{
}
