# What is installed where, and the Debian packages. A component is a package.
include(GNUInstallDirs)
include(CMakePackageConfigHelpers)

# Private libraries and the applications of the pendant: no place of the linker's.
set(FIELDBUS_PRIVATE_DIR ${CMAKE_INSTALL_LIBDIR}/fieldbus-pendant)
set(FIELDBUS_APPLICATIONS_DIR ${FIELDBUS_PRIVATE_DIR}/applications)

# --- fieldbussetting: the plug-in library and what another application needs to use it
install(TARGETS fieldbussetting LIBRARY DESTINATION ${FIELDBUS_APPLICATIONS_DIR} COMPONENT fieldbussetting)
install(FILES fieldbussetting/fieldbussetting.json DESTINATION ${FIELDBUS_APPLICATIONS_DIR} COMPONENT fieldbussetting)
# The library's header and what it includes: the records of the files.
set(records BusSwitchFile DeviceNetMasterFile DeviceNetSlaveFile EipSlaveFile FinsClientFile HeartbeatFile KeptNumbers
            MasterTableFile MesServerFile MtcpMasterFile OverrideFile PfbSlaveFile)
list(TRANSFORM records REPLACE "(.+)" "core/formats/\\1.h" OUTPUT_VARIABLE public_headers)
install(FILES ${public_headers} fieldbussetting/lib/FieldbusSettingLib.h fieldbussetting/lib/WriteProblem.h
        DESTINATION ${CMAKE_INSTALL_INCLUDEDIR}/fieldbussetting COMPONENT fieldbussetting)
set(package_dir ${CMAKE_INSTALL_LIBDIR}/cmake/fieldbussetting)
configure_package_config_file(cmake/fieldbussettingConfig.cmake.in ${CMAKE_BINARY_DIR}/fieldbussettingConfig.cmake
                              INSTALL_DESTINATION ${package_dir}
                              PATH_VARS CMAKE_INSTALL_INCLUDEDIR FIELDBUS_PRIVATE_DIR FIELDBUS_APPLICATIONS_DIR)
write_basic_package_version_file(${CMAKE_BINARY_DIR}/fieldbussettingConfigVersion.cmake COMPATIBILITY SameMajorVersion)
install(FILES ${CMAKE_BINARY_DIR}/fieldbussettingConfig.cmake ${CMAKE_BINARY_DIR}/fieldbussettingConfigVersion.cmake
        DESTINATION ${package_dir} COMPONENT fieldbussetting)
if(PENDANT_SDK_DIR)
  return()
endif()

# --- pendant: the desktop pendant
set_target_properties(fieldbussetting PROPERTIES INSTALL_RPATH "$ORIGIN/..")
file(RELATIVE_PATH private_from_bin /${CMAKE_INSTALL_BINDIR} /${FIELDBUS_PRIVATE_DIR})
set_target_properties(pendant PROPERTIES INSTALL_RPATH "$ORIGIN/${private_from_bin}")
install(TARGETS pendant RUNTIME COMPONENT pendant)
install(TARGETS pendanthost LIBRARY DESTINATION ${FIELDBUS_PRIVATE_DIR} COMPONENT pendant)
set(FIELDBUS_RELEASE_DATE 2026-11-21)
configure_file(packaging/fieldbus-pendant.metainfo.xml ${CMAKE_BINARY_DIR}/fieldbus-pendant.metainfo.xml @ONLY)
install(FILES packaging/fieldbus-pendant.desktop DESTINATION ${CMAKE_INSTALL_DATADIR}/applications COMPONENT pendant)
install(FILES ${CMAKE_BINARY_DIR}/fieldbus-pendant.metainfo.xml DESTINATION ${CMAKE_INSTALL_DATADIR}/metainfo
        COMPONENT pendant)
install(FILES packaging/fieldbus-pendant.svg DESTINATION ${CMAKE_INSTALL_DATADIR}/icons/hicolor/scalable/apps
        COMPONENT pendant)
install(FILES packaging/man/fieldbus-pendant.1 DESTINATION ${CMAKE_INSTALL_MANDIR}/man1 COMPONENT pendant)
install(FILES README.md CHANGELOG.md SECURITY.md DESTINATION ${CMAKE_INSTALL_DATADIR}/doc/fieldbus-pendant
        COMPONENT pendant)
install(DIRECTORY docs DESTINATION ${CMAKE_INSTALL_DATADIR}/doc/fieldbus-pendant COMPONENT pendant)

# --- fieldbusctl: the command-line tool
if(TARGET fieldbusctl)
  install(TARGETS fieldbusctl RUNTIME COMPONENT fieldbusctl)
  install(FILES fieldbusctl/fieldbusctl.1 DESTINATION ${CMAKE_INSTALL_MANDIR}/man1 COMPONENT fieldbusctl)
  install(FILES fieldbusctl/fieldbusctl.bash DESTINATION ${CMAKE_INSTALL_DATADIR}/bash-completion/completions
          RENAME fieldbusctl COMPONENT fieldbusctl)
  install(FILES docs/fieldbusctl.md docs/findings.md DESTINATION ${CMAKE_INSTALL_DATADIR}/doc/fieldbusctl
          COMPONENT fieldbusctl)
endif()

# What Debian wants beside every package, and one licence text for all: none but those of what is linked.
foreach(package fieldbus-pendant:pendant fieldbussetting:fieldbussetting fieldbusctl:fieldbusctl)
  string(REPLACE ":" ";" names ${package})
  list(GET names 0 name)
  list(GET names 1 component)
  set(folder ${CMAKE_BINARY_DIR}/packaging/${name})
  file(MAKE_DIRECTORY ${folder})
  configure_file(packaging/debian/changelog.in ${folder}/changelog @ONLY)
  file(ARCHIVE_CREATE OUTPUT ${folder}/changelog.gz PATHS ${folder}/changelog FORMAT raw COMPRESSION GZip MTIME 0)
  configure_file(NOTICE ${folder}/copyright COPYONLY)
  install(FILES ${folder}/changelog.gz ${folder}/copyright DESTINATION ${CMAKE_INSTALL_DATADIR}/doc/${name}
          COMPONENT ${component})
endforeach()

set(CPACK_GENERATOR DEB)
set(CPACK_PACKAGE_VENDOR "Fieldbus Pendant")
set(CPACK_PACKAGE_CONTACT "Fieldbus Pendant maintainers <maintainers@localhost.localdomain>")
set(CPACK_PACKAGE_VERSION ${PROJECT_VERSION})
set(CPACK_PACKAGE_DIRECTORY ${CMAKE_SOURCE_DIR}/dist)
set(CPACK_PACKAGING_INSTALL_PREFIX /usr)
set(CPACK_STRIP_FILES ON)
set(CPACK_INSTALL_DEFAULT_DIRECTORY_PERMISSIONS
    OWNER_READ OWNER_WRITE OWNER_EXECUTE GROUP_READ GROUP_EXECUTE WORLD_READ WORLD_EXECUTE)
set(CPACK_COMPONENTS_ALL pendant fieldbussetting)
if(TARGET fieldbusctl)
  list(APPEND CPACK_COMPONENTS_ALL fieldbusctl)
endif()
set(CPACK_DEB_COMPONENT_INSTALL ON)
set(CPACK_COMPONENTS_GROUPING ONE_PER_GROUP)
set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_PACKAGE_RELEASE 1)
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS_PRIVATE_DIRS ${CMAKE_LIBRARY_OUTPUT_DIRECTORY})
set(CPACK_DEBIAN_PENDANT_PACKAGE_NAME fieldbus-pendant)
set(CPACK_DEBIAN_PENDANT_PACKAGE_SECTION electronics)
set(CPACK_DEBIAN_PENDANT_PACKAGE_DEPENDS "fieldbussetting (>= ${PROJECT_VERSION})")
set(CPACK_COMPONENT_PENDANT_DESCRIPTION
    "desktop robot teach pendant with a simulated controller
 The pendant shows the applications that are installed beside it, among them
 the fieldbus settings of an industrial robot, and runs a simulated robot
 controller whose files and variables they see and change.")
set(CPACK_DEBIAN_FIELDBUSSETTING_PACKAGE_NAME fieldbussetting)
set(CPACK_DEBIAN_FIELDBUSSETTING_PACKAGE_SECTION electronics)
set(CPACK_COMPONENT_FIELDBUSSETTING_DESCRIPTION
    "fieldbus settings of an industrial robot, plug-in of a teach pendant
 The application that a pendant loads: bus roles, the settings of each role,
 the mapping of bus data onto variables and a watchdog for each bus. With the
 headers and the CMake package of its library of settings.")
set(CPACK_DEBIAN_FIELDBUSCTL_PACKAGE_NAME fieldbusctl)
set(CPACK_DEBIAN_FIELDBUSCTL_PACKAGE_SECTION electronics)
set(CPACK_COMPONENT_FIELDBUSCTL_DESCRIPTION
    "checks, compares and documents a robot's exported fieldbus configuration
 Reads the folders that a teach pendant exports to a USB drive: shows every
 role, tells what is wrong and what to do, what differs between two robots,
 and the list of inputs and outputs for the programmer of a PLC.")
include(CPack)
