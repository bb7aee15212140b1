#include "WorkFolder.h"

#include "ZelFunctions.h"

const QString& WorkFolder::path()
{
    static const QString folder = ZelGetLocalizedFileName(QStringLiteral("../Application/fieldbusStatus"), 1);
    return folder;
}
