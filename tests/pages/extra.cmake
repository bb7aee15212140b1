# Opens an application some hundred times.
set_tests_properties(tst_everypage PROPERTIES TIMEOUT 900)
