# SPDX-License-Identifier: GPL-3.0-or-later
# Compiles one score: cmake -D ABC2MIDI=program -D SCORE=file.abc -D MIDI=file.mid -P compile_tune.cmake
# abc2midi leaves with 0 whatever it finds, so what it says decides. It says the name of the file it writes too,
# which is why it gets that without its folder.
get_filename_component(folder ${MIDI} DIRECTORY)
get_filename_component(name ${MIDI} NAME)
file(REMOVE ${MIDI})

execute_process(
  COMMAND ${ABC2MIDI} ${SCORE} -o ${name}
  WORKING_DIRECTORY ${folder}
  OUTPUT_VARIABLE said
  ERROR_VARIABLE said
  RESULT_VARIABLE result)

string(TOLOWER "${said}" lower)
if(NOT result EQUAL 0 OR lower MATCHES "error|warning" OR NOT EXISTS ${MIDI})
  file(REMOVE ${MIDI})
  message(FATAL_ERROR "${SCORE} has a fault:\n${said}")
endif()
