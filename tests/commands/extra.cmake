add_test(NAME run_help COMMAND ${CMAKE_CURRENT_LIST_DIR}/help.sh $<TARGET_FILE:pendant> ${CMAKE_SOURCE_DIR}/run)
