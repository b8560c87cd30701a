# Tests on this machine (presets host, host-sanitize) and under Wine (preset win9x-tests). Test sources are found by folder.
#   unit      the portable program on the simulated machine: both
#   contract  the system interfaces: the simulated side on this machine, the real side under Wine
#   e2e       the shipped exe, driven from outside: under Wine
#   small_machine   the shipped exes on an emulated PC with little memory (small_machine.cmake)
set(gtest_disable_pthreads ON CACHE BOOL "No threads in the tests" FORCE)
set(gtest_force_shared_crt ON CACHE BOOL "" FORCE)
if(WIN32)
  # The win32 thread model has no std::mutex; only GoogleTest's own notification is missing.
  add_compile_definitions(GTEST_HAS_NOTIFICATION_=1)
  add_compile_options("SHELL:-include ${CMAKE_SOURCE_DIR}/cmake/gtest_notification.h")
  # 53-bit arithmetic, as in the shipped programs; the compiler's start-up code selects 64 bits.
  set(precision_object /usr/i686-w64-mingw32/lib/CRT_fp8.o)
endif()
add_subdirectory(/usr/src/googletest ${CMAKE_BINARY_DIR}/googletest EXCLUDE_FROM_ALL)
include(GoogleTest)
include(cmake/packed_topics.cmake)

add_library(qdix_simulated STATIC ${simulated_sources})
target_link_libraries(qdix_simulated PRIVATE qdix_warnings qdix_quick_tests PUBLIC qdix_program)

# The whole program on a simulated machine, for tests.
file(GLOB rig_sources CONFIGURE_DEPENDS tests/support/*.cpp)
add_library(qdix_rig STATIC ${rig_sources})
target_include_directories(qdix_rig PUBLIC ${CMAKE_SOURCE_DIR})
target_link_libraries(qdix_rig PRIVATE qdix_warnings qdix_quick_tests PUBLIC qdix_simulated)

# Long enough for a busy machine on which Wine runs in an emulator.
set(wine_limit_s 3000)
# A hundred times what a shard needs on an idle machine.
set(shard_limit_s 600)
# Six frames show who allocated, and a test frees far less than 16 MB: with the default of thirty frames
# and 256 MB the tests take a fifth longer.
set(sanitizer_options "ASAN_OPTIONS=malloc_context_size=6:quarantine_size_mb=16")

# qdix_test(<name> [SHARDS <count>] [GROUPED] SOURCES <file>... LIBRARIES <target>...): adds a test program. On this machine
# each of its tests is one ctest test. Where starting a process per test would take longer than the tests, SHARDS makes that
# many ctest tests instead; build/<preset>/reports/ then has the result of every single test. Under Wine the program is one
# ctest test, or none if GROUPED; the caller then adds its groups.
function(qdix_test name)
  cmake_parse_arguments(PARSE_ARGV 1 test "GROUPED" "SHARDS" "SOURCES;LIBRARIES")
  if(NOT test_SOURCES)
    return()
  endif()
  add_executable(${name} ${test_SOURCES})
  target_include_directories(${name} PRIVATE ${CMAKE_SOURCE_DIR})
  target_link_libraries(${name} PRIVATE qdix_warnings ${test_LIBRARIES} gtest_main gmock)
  string(REPLACE "_tests" "" prefix ${name})
  if(WIN32)
    target_link_options(${name} PRIVATE -static)
    target_link_libraries(${name} PRIVATE ${precision_object})
    # A different name, so "-R unit" finds only the quick tests.
    string(REPLACE "unit" "portable" wine_name wine.${prefix})
    if(NOT test_GROUPED)
      # Brief: after a failure, its text must not drown among hundreds of lines of other tests.
      add_test(NAME ${wine_name} COMMAND ${name} --gtest_brief=1)
      set_tests_properties(${wine_name} PROPERTIES TIMEOUT ${wine_limit_s})
    endif()
  elseif(test_SHARDS)
    math(EXPR last_shard "${test_SHARDS} - 1")
    foreach(shard RANGE ${last_shard})
      set(test_name ${prefix}.shard_${shard})
      add_test(NAME ${test_name}
        COMMAND ${name} --gtest_brief=1 --gtest_output=xml:${CMAKE_BINARY_DIR}/reports/${test_name}.xml)
      set_tests_properties(${test_name} PROPERTIES REQUIRED_FILES $<TARGET_FILE:${name}>
        ENVIRONMENT "GTEST_TOTAL_SHARDS=${test_SHARDS};GTEST_SHARD_INDEX=${shard};${sanitizer_options}"
        TIMEOUT ${shard_limit_s})
    endforeach()
  else()
    gtest_discover_tests(${name} TEST_PREFIX "${prefix}." DISCOVERY_MODE PRE_TEST NO_PRETTY_VALUES)
  endif()
endfunction()

file(GLOB_RECURSE unit_sources CONFIGURE_DEPENDS tests/unit/*.cpp)
qdix_test(unit_tests SHARDS 4 SOURCES ${unit_sources} LIBRARIES qdix_rig ${companion_libraries})
add_dependencies(unit_tests qdix_packed_topics)
# The help topics as generated and as packed; the paths are those of the system that runs the tests.
set(host_drive "")
if(WIN32)
  set(host_drive "Z:")
endif()
set_source_files_properties(tests/unit/help_viewer/shipped_topics_test.cpp tests/e2e/help_viewer_test.cpp
  PROPERTIES COMPILE_DEFINITIONS
  "QDIX_TOPIC_STREAM=\"${host_drive}${QDIX_TOPIC_STREAM}\";QDIX_PACKED_TOPICS=\"${host_drive}${QDIX_PACKED_TOPICS}\"")

file(GLOB_RECURSE contract_sources CONFIGURE_DEPENDS tests/contract/*.cpp)
if(WIN32)
  list(FILTER contract_sources EXCLUDE REGEX "/simulated/")
  qdix_test(contract_tests SOURCES ${contract_sources} LIBRARIES qdix_win32 comctl32)

  file(GLOB driver_sources CONFIGURE_DEPENDS tests/e2e/driver/*.cpp)
  file(GLOB e2e_sources CONFIGURE_DEPENDS tests/e2e/*.cpp tests/e2e/supervisor/*.cpp)
  file(GLOB probe_sources CONFIGURE_DEPENDS tools/probe/*.cpp)
  if(driver_sources)
    add_library(e2e_driver STATIC ${driver_sources})
    target_include_directories(e2e_driver PUBLIC ${CMAKE_SOURCE_DIR})
    target_compile_definitions(e2e_driver PRIVATE QDIX_SOURCE_DIR="${CMAKE_SOURCE_DIR}")
    target_link_libraries(e2e_driver PRIVATE qdix_warnings PUBLIC qdix_simulated ${companion_libraries} qdix_windows95 comctl32 psapi)
    add_executable(qdix_probe ${probe_sources})
    target_link_libraries(qdix_probe PRIVATE qdix_warnings e2e_driver)
    target_link_options(qdix_probe PRIVATE -static)
    qdix_test(e2e_tests GROUPED SOURCES ${e2e_sources} LIBRARIES e2e_driver qdix_win32)
    add_dependencies(e2e_tests qdix_packed_topics)
    # The launcher starts this program in the tests.
    add_executable(witness WIN32 tests/e2e/witness/main.cpp)
    target_link_libraries(witness PRIVATE qdix_warnings)
    target_link_options(witness PRIVATE -static)
    add_dependencies(e2e_tests witness)
    target_compile_definitions(e2e_driver PRIVATE QDIX_WITNESS="$<TARGET_FILE:witness>")

    # Programs for the small machine: idle holds memory and does nothing, hungry needs much memory at once.
    add_executable(idle tools/small_machine/programs/idle.cpp)
    add_executable(hungry WIN32 tools/small_machine/programs/hungry.cpp)
    foreach(program IN ITEMS idle hungry)
      target_include_directories(${program} PRIVATE ${CMAKE_SOURCE_DIR})
      target_link_libraries(${program} PRIVATE qdix_warnings)
      target_link_options(${program} PRIVATE -static)
    endforeach()

    # Measures the programs that the tests drive. bench/run.sh runs it. It is built with the tests, so a change that
    # breaks it is noticed.
    file(GLOB bench_sources CONFIGURE_DEPENDS bench/*.cpp)
    add_executable(qdix_bench ${bench_sources})
    target_link_libraries(qdix_bench PRIVATE qdix_warnings qdix_rig e2e_driver ${precision_object})
    target_link_options(qdix_bench PRIVATE -static)

    # Each group runs on a strict machine (tests/strict95), in a prefix and on a desktop of its own, beside other tests.
    # The cost makes ctest start the longest tests first.
    function(qdix_e2e_group name machine filter)
      add_test(NAME wine.e2e_${name}
        COMMAND ${CMAKE_SOURCE_DIR}/tests/strict95/on_own_machine.sh ${machine}
                ${CMAKE_SOURCE_DIR}/build/win9x-strict/QDIX.exe $<TARGET_FILE:witness> $<TARGET_FILE:e2e_tests>
                --gtest_brief=1 --gtest_filter=${filter})
      set_tests_properties(wine.e2e_${name} PROPERTIES TIMEOUT ${wine_limit_s} COST 1000)
    endfunction()
    # All tests run on the strict Windows 98, in two groups that take about the same time: those of the companions and of
    # what starts them, and all others.
    set(companions "ConfigSession.*:*HelpOfTheProgram.*:HelpSession.*:LauncherSession.*:SelfTest.*:UndoSession.*")
    qdix_e2e_group(98_companions 98 ${companions})
    qdix_e2e_group(98_program 98 "-${companions}")
    qdix_e2e_group(rtm rtm "StartSession.*:StartModeSession.*:*TabSession.*:SwapFileSession.*:${companions}")
    # The programs as they are shipped get a smoke test and the self-test, which knows Wine's answers.
    add_test(NAME wine.e2e_untouched COMMAND e2e_tests --gtest_brief=1
      --gtest_filter=StartSession.FirstStartStoresExactlyItsDefaults:TabSession.*:SelfTest.*)
    set_tests_properties(wine.e2e_untouched PROPERTIES TIMEOUT ${wine_limit_s})

    # Has its own prefix and desktop, so it need not wait for the other tests.
    add_test(NAME wine.install
      COMMAND ${CMAKE_SOURCE_DIR}/tests/dist/install_test.sh ${CMAKE_SOURCE_DIR}/build/win9x $<TARGET_FILE:qdix_probe>)
    set_tests_properties(wine.install PROPERTIES TIMEOUT ${wine_limit_s})
  endif()
  foreach(desktop_test IN ITEMS wine.contract wine.e2e_untouched)
    if(TEST ${desktop_test})
      # One desktop, one pointer, one registry.
      set_tests_properties(${desktop_test} PROPERTIES RESOURCE_LOCK desktop)
    endif()
  endforeach()
else()
  list(FILTER contract_sources EXCLUDE REGEX "/win32/")
  qdix_test(contract_tests SHARDS 1 SOURCES ${contract_sources} LIBRARIES qdix_simulated)
  file(GLOB fuzz_sources CONFIGURE_DEPENDS tests/fuzz/*.cpp)
  qdix_test(fuzz_tests SOURCES ${fuzz_sources} LIBRARIES qdix_rig ${companion_libraries})
  target_compile_definitions(fuzz_tests PRIVATE QDIX_CORPUS="${CMAKE_SOURCE_DIR}/tests/fuzz/corpus")
  file(GLOB soak_sources CONFIGURE_DEPENDS tests/soak/*.cpp)
  qdix_test(soak_tests SOURCES ${soak_sources} LIBRARIES qdix_rig)

  # The self-test of the shipped programs' runtime, with this machine's C library.
  add_executable(runtime_probe tests/image/runtime_probe.cpp tests/image/runtime_probe_host.cpp)
  target_link_libraries(runtime_probe PRIVATE qdix_warnings qdix_program)
  add_test(NAME image.runtime_probe_on_host COMMAND runtime_probe)
  add_test(NAME setup.test_targets COMMAND ${Python3_EXECUTABLE} ${CMAKE_SOURCE_DIR}/tests/setup/test_targets_test.py)
  include(cmake/lint.cmake)
endif()
include(cmake/small_machine.cmake)
