# The rules of the I/O mapping know no widget: they are tested by themselves.
target_link_libraries(tst_mappingmodel PRIVATE core_rules)
