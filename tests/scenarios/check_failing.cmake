# Runs the scenario that is meant to fail, with one that passes, and checks the report line by
# line and the exit code.
execute_process(
  COMMAND ${PANELSIM} script deferred_close.scn failing/wrong_top.scn
  RESULT_VARIABLE rc
  OUTPUT_VARIABLE out
  ERROR_VARIABLE err)
set(expected "PASS deferred_close.scn
FAIL failing/wrong_top.scn:6: expect top CID_02_44_N1   # the page went back to its parent -- the top page is CID_01_01_N1 (0)
1 passed, 1 failed
")
if(NOT rc EQUAL 1)
  message(FATAL_ERROR "exit code ${rc}, wanted 1\n${out}${err}")
endif()
if(NOT out STREQUAL expected)
  message(FATAL_ERROR "report differs:\n--- got\n${out}--- wanted\n${expected}")
endif()
