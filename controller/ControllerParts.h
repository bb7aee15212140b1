#ifndef CONTROLLER_CONTROLLERPARTS_H
#define CONTROLLER_CONTROLLERPARTS_H

#include "BusRoles.h"
#include "Faults.h"
#include "FileStore.h"
#include "FrameLog.h"
#include "Links.h"
#include "SimulatedTime.h"
#include "Traffic.h"
#include "VariableStore.h"

/// What a behaviour may touch of the controller.
struct ControllerParts
{
    explicit ControllerParts(const QString& storeDirectory)
        : files(storeDirectory)
    {
    }

    bool isUp = false; ///< false until it first came up, and while it restarts
    FileStore files;
    VariableStore variables;
    BusRoles roles;
    Links links;
    Faults faults;
    Traffic traffic;
    FrameLog frames;
    SimulatedTime time;
};

#endif
