# Runs every benchmark once, briefly, and fails when one reported an error: keeps the benchmarks
# building and running in CI's build. The figures of such a run mean nothing.
execute_process(
  COMMAND ${BENCH} --benchmark_min_time=0.001 --benchmark_format=json --benchmark_out=${OUT}
  RESULT_VARIABLE rc OUTPUT_QUIET)
if(NOT rc EQUAL 0)
  message(FATAL_ERROR "orvanta_bench exited with ${rc}")
endif()
file(READ ${OUT} json)
string(JSON count LENGTH "${json}" benchmarks)
if(count LESS 1)
  message(FATAL_ERROR "no benchmark ran")
endif()
math(EXPR last "${count} - 1")
foreach(i RANGE ${last})
  string(JSON name GET "${json}" benchmarks ${i} name)
  string(JSON error ERROR_VARIABLE none GET "${json}" benchmarks ${i} error_message)
  if(NOT none)
    message(FATAL_ERROR "${name}: ${error}")
  endif()
endforeach()
message(STATUS "${count} benchmarks ran")
