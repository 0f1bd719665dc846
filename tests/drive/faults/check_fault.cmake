# Runs the driver on a script that must stop, and checks how: the script's own header says
#   # exit: N
#   # output: LINE
# and the run must end with status N and print LINE as one whole line; the summary line of a
# successful run must not appear.
# Called as: cmake -DDRIVER=... -DSCRIPT=... -P check_fault.cmake

file(STRINGS "${SCRIPT}" header REGEX "^# (exit|output): " ENCODING UTF-8)
set(want_exit "")
set(want_output "")
foreach(line IN LISTS header)
  if(line MATCHES "^# exit: (.*)$")
    set(want_exit "${CMAKE_MATCH_1}")
  elseif(line MATCHES "^# output: (.*)$")
    set(want_output "${CMAKE_MATCH_1}")
  endif()
endforeach()
if(want_exit STREQUAL "" OR want_output STREQUAL "")
  message(FATAL_ERROR "${SCRIPT}: the header lacks '# exit:' or '# output:'")
endif()

execute_process(COMMAND "${DRIVER}" "${SCRIPT}"
  RESULT_VARIABLE status OUTPUT_VARIABLE output ERROR_VARIABLE errors)

if(NOT status STREQUAL want_exit)
  message(FATAL_ERROR "exit status ${status}, wanted ${want_exit}\n${output}${errors}")
endif()
string(FIND "\n${output}" "\n${want_output}\n" at)
if(at EQUAL -1)
  message(FATAL_ERROR "the output lacks the line\n${want_output}\nit was:\n${output}${errors}")
endif()
if(output MATCHES "passed, 0 failed")
  message(FATAL_ERROR "a stopped run printed the summary of a successful one:\n${output}")
endif()
