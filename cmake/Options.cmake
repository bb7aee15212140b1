# Compile and link options that every target of the project shares.
add_library(fieldbus_options INTERFACE)
target_compile_options(fieldbus_options INTERFACE -Wall -Wextra -Wnon-virtual-dtor -Woverloaded-virtual -Wshadow)
target_compile_definitions(fieldbus_options INTERFACE QT_DEPRECATED_WARNINGS QT_NO_CAST_TO_ASCII)
if(FIELDBUS_WERROR)
  target_compile_options(fieldbus_options INTERFACE -Werror)
endif()
if(FIELDBUS_SANITIZE)
  target_compile_options(fieldbus_options INTERFACE -fsanitize=address,undefined -fno-sanitize-recover=undefined
                                                    -fno-omit-frame-pointer)
  target_link_options(fieldbus_options INTERFACE -fsanitize=address,undefined)
endif()
if(FIELDBUS_FUZZ)
  target_compile_options(fieldbus_options INTERFACE -fsanitize=fuzzer-no-link)
endif()
# Precompiled headers that ccache can keep.
target_compile_options(fieldbus_options INTERFACE $<$<CXX_COMPILER_ID:GNU>:-fpch-preprocess>
                                                  "$<$<CXX_COMPILER_ID:Clang>:SHELL:-Xclang -fno-pch-timestamp>")
# What is installed names no folder of the build; debuggers and sanitizers want whole paths.
target_compile_options(fieldbus_options INTERFACE $<$<CONFIG:Release>:-ffile-prefix-map=${PROJECT_SOURCE_DIR}/=>)

# Precompiled headers: one for code that knows widgets, one for code that must not.
function(fieldbus_pch name qt_module qt_header)
  add_library(${name} OBJECT ${CMAKE_CURRENT_FUNCTION_LIST_DIR}/pch.cpp)
  set_target_properties(${name} PROPERTIES AUTOMOC OFF AUTOUIC OFF AUTORCC OFF)
  target_link_libraries(${name} PRIVATE fieldbus_options ${qt_module})
  target_precompile_headers(${name} PRIVATE ${qt_header} <algorithm> <array> <functional> <memory> <optional> <vector>)
endfunction()
if(FIELDBUS_PENDANT)
  fieldbus_pch(fieldbus_pch_widgets Qt::Widgets <QtWidgets>)
endif()
fieldbus_pch(fieldbus_pch_core Qt::Core <QtCore>)

# fieldbus_target(NAME LIBS...): the shared options, the precompiled header and the own folder as include path.
function(fieldbus_target name)
  target_link_libraries(${name} PUBLIC ${ARGN} PRIVATE fieldbus_options Qt::Widgets)
  target_include_directories(${name} PUBLIC ${CMAKE_CURRENT_SOURCE_DIR})
  target_precompile_headers(${name} REUSE_FROM fieldbus_pch_widgets)
endfunction()

# The same for code that knows no widget: a header of one is not to be found.
function(fieldbus_core_target name)
  target_link_libraries(${name} PUBLIC ${ARGN} PRIVATE fieldbus_options Qt::Core)
  target_include_directories(${name} PUBLIC ${CMAKE_CURRENT_SOURCE_DIR})
  target_precompile_headers(${name} REUSE_FROM fieldbus_pch_core)
endfunction()
