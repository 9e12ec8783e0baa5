# Plays a table script in a fresh folder and compares what the tool prints with the lines expected, which stand beside
# the script:  cmake -DTOOL=luckycup-script -DSCRIPT=yamb.txt -P replay.cmake
cmake_minimum_required(VERSION 3.25)

cmake_path(GET SCRIPT STEM name)
cmake_path(REPLACE_EXTENSION SCRIPT jsonl OUTPUT_VARIABLE expected)
set(folder ${CMAKE_CURRENT_BINARY_DIR}/replay/${name})
file(REMOVE_RECURSE ${folder})
file(MAKE_DIRECTORY ${folder}/scores)
execute_process(
  COMMAND ${TOOL}
  WORKING_DIRECTORY ${folder}
  INPUT_FILE ${SCRIPT}
  OUTPUT_FILE ${folder}/printed.jsonl
  COMMAND_ERROR_IS_FATAL ANY)

file(READ ${expected} wanted)
file(READ ${folder}/printed.jsonl printed)
if(printed STREQUAL wanted)
  return()
endif()

# The length of the text that both begin with, by halving.
set(same 0)
string(LENGTH "${wanted}" different)
while(same LESS different)
  math(EXPR middle "(${same} + ${different} + 1) / 2")
  string(SUBSTRING "${wanted}" 0 ${middle} beginning)
  string(FIND "${printed}" "${beginning}" place)
  if(place EQUAL 0)
    set(same ${middle})
  else()
    math(EXPR different "${middle} - 1")
  endif()
endwhile()
string(SUBSTRING "${wanted}" 0 ${same} beginning)
string(REGEX MATCHALL "\n" lines "${beginning}")
list(LENGTH lines line)
math(EXPR line "${line} + 1")
string(FIND "${beginning}" "\n" line_start REVERSE)
math(EXPR line_start "${line_start} + 1")
string(SUBSTRING "${printed}" ${line_start} 40 event)
string(SUBSTRING "${wanted}" ${same} 100 wanted)
string(SUBSTRING "${printed}" ${same} 100 printed)
message(FATAL_ERROR "${name}.jsonl, line ${line}: ${event}...\n expected ...${wanted}\n printed  ...${printed}")
