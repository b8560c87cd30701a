# The small machine: host tests of its parts, and tests of the shipped exes on it (label small_machine).
#   small_machine.parts, .report, .bench   no emulator: host builds
#   small_machine.make                     makes the machine if it is missing; the tests of the shipped exes need it
set(small_machine ${CMAKE_SOURCE_DIR}/tools/small_machine/small_machine.sh)
set(small_machine_tests ${CMAKE_SOURCE_DIR}/tests/small_machine)
find_package(Python3 REQUIRED COMPONENTS Interpreter)

if(NOT WIN32)
  foreach(test IN ITEMS parts report bench)
    add_test(NAME small_machine.${test} COMMAND ${Python3_EXECUTABLE} ${small_machine_tests}/${test}_test.py)
  endforeach()
else()
  add_test(NAME small_machine.make COMMAND ${small_machine} make 64 96 128)
  set_tests_properties(small_machine.make PROPERTIES FIXTURES_SETUP small_machine TIMEOUT 2400 LABELS small_machine)

  # small_machine_test(<name> <file> <argument>): adds a test. They run one at a time, because an emulated PC keeps a core busy.
  # The cost puts them right after the groups of end-to-end tests: at the end they would leave the other cores idle.
  function(small_machine_test name file argument)
    add_test(NAME small_machine.${name} COMMAND ${Python3_EXECUTABLE} ${small_machine_tests}/${file} ${argument})
    set_tests_properties(small_machine.${name} PROPERTIES
      FIXTURES_REQUIRED small_machine RESOURCE_LOCK small_machine TIMEOUT 2100 COST 900 LABELS small_machine)
  endfunction()

  foreach(memory_mb IN ITEMS 64 96 128)
    small_machine_test(release_${memory_mb} release_test.py ${memory_mb})
  endforeach()
  small_machine_test(automatic_release unasked_test.py AutomaticReleaseTest)
  small_machine_test(busy_processor unasked_test.py BusyProcessorTest)
  small_machine_test(start_up_release unasked_test.py StartUpReleaseTest)
  small_machine_test(timed_release unasked_test.py TimedReleaseTest)
  small_machine_test(hour unasked_test.py HourTest)
  small_machine_test(launch launch_test.py LaunchTest)
  small_machine_test(no_memory hardship_test.py NoMemoryTest)
  small_machine_test(close_during_release hardship_test.py CloseDuringReleaseTest)
endif()
