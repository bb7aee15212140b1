# The model of the I/O mapping knows no widget: it is tested by itself.
set(mapping_sources ${CMAKE_SOURCE_DIR}/fieldbussetting/mapping)
target_sources(
  tst_mappingmodel PRIVATE ${mapping_sources}/MappingTables.cpp ${mapping_sources}/MappingLayout.cpp
                           ${mapping_sources}/MappingChecks.cpp ${mapping_sources}/MappingModel.cpp
                           ${mapping_sources}/MappingRows.cpp)
