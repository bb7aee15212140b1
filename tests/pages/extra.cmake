# Opens an application some hundred times. The longest program starts first, so that none is waited for alone.
set_tests_properties(tst_everypage PROPERTIES TIMEOUT 900 COST 1000)
