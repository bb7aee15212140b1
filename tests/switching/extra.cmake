# The copying is tried at every step without its dialog; the plug-in does not export it, so it is built along.
set(plugin ${CMAKE_SOURCE_DIR}/fieldbussetting)
target_sources(tst_usbexport PRIVATE ${plugin}/switching/transfer/ConfigExport.cpp
                                     ${plugin}/switching/transfer/DriveFiles.cpp ${plugin}/lib/FileLocations.cpp
                                     ${plugin}/lib/Logging.cpp ${plugin}/lib/formats/WholeFile.cpp)
# The import needs the list of the files only.
target_sources(tst_usbimport PRIVATE ${plugin}/lib/FileLocations.cpp)
target_include_directories(tst_usbexport PRIVATE ${plugin}/switching/transfer)
