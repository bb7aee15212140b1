# The copying is tried at every step without its dialog.
fieldbus_export_built_along(tst_usbexport)
# The import needs the list of the files only.
target_sources(tst_usbimport PRIVATE ${CMAKE_SOURCE_DIR}/fieldbussetting/lib/FileLocations.cpp)
