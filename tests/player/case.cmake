# Plays one case and holds its exit status and its output against what is wanted.
execute_process(COMMAND ${PLAYER} --fresh ${DATA} ${FILE}
  RESULT_VARIABLE status OUTPUT_VARIABLE out ERROR_VARIABLE err)
if(NOT status STREQUAL STATUS)
  message(FATAL_ERROR "exit status ${status}, wanted ${STATUS}\n${out}\n${err}")
endif()
if(NOT out MATCHES "${OUT}")
  message(FATAL_ERROR "standard output is\n${out}\nwanted ${OUT}")
endif()
if(NOT err MATCHES "${ERR}")
  message(FATAL_ERROR "standard error is\n${err}\nwanted ${ERR}")
endif()
