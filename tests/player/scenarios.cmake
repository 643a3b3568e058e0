# Every scenario is a test in each way it can be played, on folders of its own: the program folder
# is made from data/, the home folder is empty.
set(scenario_root ${PROJECT_SOURCE_DIR}/tests/scenarios)
file(GLOB_RECURSE scenario_files CONFIGURE_DEPENDS RELATIVE ${scenario_root} ${scenario_root}/*.scenario)
foreach(file ${scenario_files})
  string(REGEX REPLACE "\\.scenario$" "" name ${file})
  string(REGEX REPLACE "/.*" "" folder ${file})
  set(play tamo_scenario --fresh ${PROJECT_SOURCE_DIR}/data ${scenario_root}/${file})
  add_test(NAME scenario/${name} COMMAND ${play})
  set_tests_properties(scenario/${name} PROPERTIES TIMEOUT 60 LABELS "${folder};scenario;forms")
  if(player_has_windows)
    add_test(NAME scenario-windows/${name} COMMAND ${play} --windows)
    set_tests_properties(scenario-windows/${name} PROPERTIES TIMEOUT 120 LABELS "${folder};scenario;windows"
      ENVIRONMENT QT_QPA_PLATFORM=offscreen)
  endif()
endforeach()

# What the player itself answers: a case file, the exit status, and what must stand in its output.
function(player_case name file status out err)
  add_test(NAME player/${name}
    COMMAND ${CMAKE_COMMAND} -DPLAYER=$<TARGET_FILE:tamo_scenario> -DDATA=${PROJECT_SOURCE_DIR}/data
      -DFILE=${CMAKE_CURRENT_SOURCE_DIR}/cases/${file} -DSTATUS=${status} -DOUT=${out} -DERR=${err}
      -P ${CMAKE_CURRENT_SOURCE_DIR}/case.cmake)
  set_tests_properties(player/${name} PROPERTIES TIMEOUT 60 LABELS "player;forms")
endfunction()

player_case(all-holds all-holds.scenario 0 "^Estimating Beta 1.4\n$" "^$")
player_case(wrong-expectation-plays-on wrong-expectation.scenario 1 "^played on\n$" "wrong-expectation.scenario:2: .*- .nothing.*[+] .Estimating")
player_case(unknown-control-stops unknown-control.scenario 2 "^$" "unknown-control.scenario:2: .*Tamo has no control Nowhere")
player_case(unknown-step-stops unknown-step.scenario 2 "^$" "unknown-step.scenario:2: .*there is no step .dance")
player_case(question-without-answer question.scenario 1 "^True\n$" "question.scenario:[0-9]+: menu Tamo.DeleteProject.*without a waiting answer")
player_case(circle-of-files-stops circle.scenario 2 "^Estimating Beta 1.4\n$" "shared/circle.steps:2: use.*used by .*circle.scenario:2.*a circle")
