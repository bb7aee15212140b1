# Which files a fresh controller must have is the plug-in's list.
target_sources(tst_plant PRIVATE ${CMAKE_SOURCE_DIR}/fieldbussetting/lib/FileLocations.cpp)
