#ifndef RESTARTFILES_H
#define RESTARTFILES_H

#include "KnownFiles.h"

#include <array>

/// The files that the controller reads when it comes up, and not before. The list of roles is one of them,
/// too; what differs there is told role by role.
constexpr std::array<FileId, 8> RestartFiles = {FileId::Mapping,   FileId::DeviceNetSlave, FileId::EipMaster,
                                                FileId::PfnMaster, FileId::SlaveModule,    FileId::EipSlave,
                                                FileId::PfbSlave,  FileId::Override};

#endif
