# The files that the pendant asks for; the plug-in does not export their list, so it is built along.
target_sources(tst_plant PRIVATE ${CMAKE_SOURCE_DIR}/fieldbussetting/lib/FileLocations.cpp)
