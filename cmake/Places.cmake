# Where things are installed. A component is a Debian package.
include(GNUInstallDirs)
# Private libraries and the applications of the pendant: no place of the linker's.
set(FIELDBUS_PRIVATE_DIR ${CMAKE_INSTALL_LIBDIR}/fieldbus-pendant)
set(FIELDBUS_APPLICATIONS_DIR ${FIELDBUS_PRIVATE_DIR}/applications)
# Programs find both from where they lie themselves, so that an installed tree may be moved.
file(RELATIVE_PATH FIELDBUS_PRIVATE_FROM_BIN /${CMAKE_INSTALL_BINDIR} /${FIELDBUS_PRIVATE_DIR})

# fieldbus_application(NAME FILES...): the shared library NAME is an application of the pendant. It exports what the version
# script NAME.map names and nothing else (not by a flag of the compiler: a precompiled header serves code of one
# visibility only). Its description NAME.json lies beside it, with FILES.
function(fieldbus_application name)
  set(map ${CMAKE_CURRENT_SOURCE_DIR}/${name}.map)
  target_link_options(${name} PRIVATE LINKER:--version-script=${map})
  set_target_properties(${name} PROPERTIES LINK_DEPENDS ${map} VERSION ${PROJECT_VERSION}
                                           SOVERSION ${PROJECT_VERSION_MAJOR})
  install(TARGETS ${name} LIBRARY DESTINATION ${FIELDBUS_APPLICATIONS_DIR} COMPONENT fieldbussetting)
  foreach(file ${name}.json ${ARGN})
    get_filename_component(base ${file} NAME)
    configure_file(${file} ${CMAKE_LIBRARY_OUTPUT_DIRECTORY}/applications/${base} COPYONLY)
    install(FILES ${file} DESTINATION ${FIELDBUS_APPLICATIONS_DIR} COMPONENT fieldbussetting)
  endforeach()
endfunction()
