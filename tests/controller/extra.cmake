# The files that the pendant asks for; the plug-in does not export their list, so it is built along.
target_sources(tst_plant PRIVATE ${CMAKE_SOURCE_DIR}/fieldbussetting/lib/FileLocations.cpp)

# Documents that are held to the code, and scenarios that are played.
target_compile_definitions(tst_partners PRIVATE SOURCE_DIRECTORY="${CMAKE_SOURCE_DIR}")
