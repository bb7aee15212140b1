#ifndef FIELDBUSMODULE_H
#define FIELDBUSMODULE_H

#include "BusFileDataManager.h"

/// What the controller has in its slot for a fieldbus module, as far as pages depend on it.
namespace FieldbusModule {

/// Codes of the slave modules in "ifidbus.anybus_fm".
constexpr int EtherCat = 13;
constexpr int Profinet = 14;

/// The service's answer that there is a ProfiSAFE device; every other one is "no" or "not known".
constexpr int ProfisafePresent = 1;

/// Whether the module serves ProfiSAFE now; it is then not the PROFINET roles' to configure.
inline bool isProfisafePresent()
{
    return BusFileDataManager::getInstance()->checkProfiSAFEStatus() == ProfisafePresent;
}

} // namespace FieldbusModule

#endif
