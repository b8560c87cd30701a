# The small machine: its parts on this machine, and releases on it with the exes as shipped (label small_machine).
#   small_machine.parts, small_machine.report    no emulator: host builds
#   small_machine.make                           makes the machine where it is missing; the tests on it need it
set(small_machine ${CMAKE_SOURCE_DIR}/tools/small_machine/small_machine.sh)
set(small_machine_tests ${CMAKE_SOURCE_DIR}/tests/small_machine)
find_package(Python3 REQUIRED COMPONENTS Interpreter)

if(NOT WIN32)
  foreach(test IN ITEMS parts report)
    add_test(NAME small_machine.${test} COMMAND ${Python3_EXECUTABLE} ${small_machine_tests}/${test}_test.py)
  endforeach()
else()
  add_test(NAME small_machine.make COMMAND ${small_machine} make 64 96 128)
  set_tests_properties(small_machine.make PROPERTIES FIXTURES_SETUP small_machine TIMEOUT 2400 LABELS small_machine)

  # One at a time: an emulated PC keeps a core busy.
  foreach(memory_mb IN ITEMS 64 96 128)
    add_test(NAME small_machine.release_${memory_mb}
      COMMAND ${Python3_EXECUTABLE} ${small_machine_tests}/release_test.py ${memory_mb})
    set_tests_properties(small_machine.release_${memory_mb} PROPERTIES
      FIXTURES_REQUIRED small_machine RESOURCE_LOCK small_machine TIMEOUT 1200 LABELS small_machine)
  endforeach()
endif()
