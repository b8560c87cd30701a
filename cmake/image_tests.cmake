# Tests of the image check and of the link itself, on small programs that are made for the purpose: each planted fault must be found.
set(image_check ${Python3_EXECUTABLE} ${CMAKE_SOURCE_DIR}/tools/image_check/image_check.py
    --exports ${CMAKE_SOURCE_DIR}/cmake/win95-exports)
set(planted ${CMAKE_SOURCE_DIR}/tests/image)

# A sound program: the run time's self-test. The same file, built for the host, must give the same exit code.
add_executable(runtime_probe ${planted}/runtime_probe.cpp)
qdix_link(runtime_probe qdix_program)
add_test(NAME image.runtime_probe COMMAND ${image_check} --limit-kb 64 $<TARGET_FILE:runtime_probe>)
add_test(NAME image.runtime_probe_runs COMMAND runtime_probe)

add_executable(planted_cmov ${planted}/planted_cmov.cpp)
qdix_link(planted_cmov)
add_test(NAME image.finds_planted_cmov COMMAND ${image_check} --limit-kb 64 $<TARGET_FILE:planted_cmov>)
set_tests_properties(image.finds_planted_cmov PROPERTIES PASS_REGULAR_EXPRESSION "none of the 386: cmov")

# The full import library lets a later function in; the check of the finished exe still finds it.
add_executable(planted_late_import ${planted}/planted_late_import.cpp)
qdix_link(planted_late_import /usr/i686-w64-mingw32/lib/libkernel32.a)
add_test(NAME image.finds_planted_late_import COMMAND ${image_check} --limit-kb 64 $<TARGET_FILE:planted_late_import>)
set_tests_properties(image.finds_planted_late_import PROPERTIES
  PASS_REGULAR_EXPRESSION "imports kernel32.dll!GetDiskFreeSpaceExA, which the first Windows 95 lacks")

add_executable(planted_c_library ${planted}/planted_c_library.cpp)
qdix_link(planted_c_library /usr/i686-w64-mingw32/lib/libmsvcrt.a)
add_test(NAME image.finds_planted_c_library COMMAND ${image_check} --limit-kb 64 $<TARGET_FILE:planted_c_library>)
set_tests_properties(image.finds_planted_c_library PROPERTIES PASS_REGULAR_EXPRESSION "imports msvcrt.dll")

add_test(NAME image.finds_oversize COMMAND ${image_check} --limit-kb 1 $<TARGET_FILE:runtime_probe>)
set_tests_properties(image.finds_oversize PROPERTIES PASS_REGULAR_EXPRESSION "bytes, more than 1 KB")

# Links that must fail, each with the message that says why.
foreach(fault IN ITEMS planted_late_import planted_constructor)
  add_executable(fails_${fault} EXCLUDE_FROM_ALL ${planted}/${fault}.cpp)
  qdix_link(fails_${fault})
  add_test(NAME image.link_refuses_${fault}
    COMMAND ${CMAKE_COMMAND} --build ${CMAKE_BINARY_DIR} --target fails_${fault})
endforeach()
set_tests_properties(image.link_refuses_planted_late_import PROPERTIES
  PASS_REGULAR_EXPRESSION "undefined reference to `_imp__GetDiskFreeSpaceExA@16'" RESOURCE_LOCK shipped_build)
set_tests_properties(image.link_refuses_planted_constructor PROPERTIES
  PASS_REGULAR_EXPRESSION "a global object has a constructor" RESOURCE_LOCK shipped_build)

# The same sources give the same bytes, wherever they lie.
add_test(NAME image.build_is_reproducible
  COMMAND ${CMAKE_SOURCE_DIR}/tests/image/reproducible.sh ${CMAKE_SOURCE_DIR} $<TARGET_FILE:QDIX>)
set_tests_properties(image.build_is_reproducible PROPERTIES TIMEOUT 600)
