# What tst_desktop loads: an application of its own, and two libraries that are none. PARTS is the number of
# entry points that a library exports.
foreach(parts RANGE 2)
  add_library(testplugin${parts} MODULE ${CMAKE_CURRENT_LIST_DIR}/plugin/TestPlugin.cpp)
  target_link_libraries(testplugin${parts} PRIVATE platform fieldbus_options Qt::Widgets)
  target_compile_definitions(testplugin${parts} PRIVATE PARTS=${parts})
  add_dependencies(tst_desktop testplugin${parts})
endforeach()
set_source_files_properties(${CMAKE_CURRENT_LIST_DIR}/tst_desktop.cpp
                            PROPERTIES COMPILE_DEFINITIONS TEST_PLUGINS="$<TARGET_FILE_DIR:testplugin2>")
