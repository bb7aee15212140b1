#include "ServiceFiles.h"

#include "BusFileDataManager.h"

namespace {
int changes = 0;
} // namespace

int ServiceFiles::version()
{
    return changes;
}

void ServiceFiles::readAnew()
{
    ++changes;
    BusFileDataManager::getInstance()->emitGetFieldXml();
    BusFileDataManager::getInstance()->emitGetFieldbusCfg();
}
