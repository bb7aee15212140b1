# The plug-in built as a pendant's maker does it: headers from an SDK, neither host nor controller. The SDK is
# laid out when the project is configured; an application includes a header a name.
set(sdk ${CMAKE_CURRENT_BINARY_DIR}/sdk)
configure_file(${CMAKE_CURRENT_LIST_DIR}/sdk.h ${sdk}/include/sdk.h COPYONLY)
configure_file(${CMAKE_SOURCE_DIR}/platform/vantor/busfiledatalib/BusFileData.h ${sdk}/include/BusFileData.h COPYONLY)
foreach(name BaseZelCustomData BusFileDataManager BusObserver DataAccess DesktopApi MsgBox ProgressBarWidget
             QTouchLineEdit SysSettingApi ZelBaseWidget ZelFunctions zelCustomRvar)
  file(CONFIGURE OUTPUT ${sdk}/include/${name}.h CONTENT "#include \"sdk.h\"\n")
endforeach()
add_test(
  NAME sdk_build
  COMMAND
    ${CMAKE_CTEST_COMMAND} --build-and-test ${CMAKE_SOURCE_DIR} ${CMAKE_CURRENT_BINARY_DIR}/sdk/build --build-generator
    ${CMAKE_GENERATOR} --build-makeprogram ${CMAKE_MAKE_PROGRAM} --build-target fieldbussetting --build-options
    -DPENDANT_SDK_DIR=${sdk} -DFIELDBUS_WERROR=ON -DCMAKE_BUILD_TYPE=Debug -DCMAKE_CXX_FLAGS_DEBUG=-O0
    -DCMAKE_CXX_COMPILER=${CMAKE_CXX_COMPILER})
set_tests_properties(sdk_build PROPERTIES TIMEOUT 900 LABELS build)
