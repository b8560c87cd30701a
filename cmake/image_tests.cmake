# Tests the image check and the link with small programs, most of them with one planted fault that must be found.
set(planted ${CMAKE_SOURCE_DIR}/tests/image)
set(image_check ${Python3_EXECUTABLE} ${CMAKE_SOURCE_DIR}/tools/image_check/image_check.py
    --exports ${CMAKE_SOURCE_DIR}/cmake/win95-exports)
set(ends_with ${Python3_EXECUTABLE} ${planted}/ends_with.py)

# A program without faults: the self-test of the runtime. The host builds run the same source file.
add_executable(runtime_probe ${planted}/runtime_probe.cpp)
qdix_link(runtime_probe qdix_program)
add_test(NAME image.runtime_probe COMMAND ${image_check} --limit-kb 64 $<TARGET_FILE:runtime_probe>)
add_test(NAME image.runtime_probe_runs COMMAND runtime_probe)
add_test(NAME image.check_knows_its_rules
  COMMAND ${Python3_EXECUTABLE} ${planted}/image_check_test.py $<TARGET_FILE:runtime_probe>)

add_executable(lack_of_memory_probe ${planted}/lack_of_memory_probe.cpp)
qdix_link(lack_of_memory_probe)
add_test(NAME image.lack_of_memory_ends_the_process
  COMMAND ${ends_with} 3 "" ${CMAKE_CROSSCOMPILING_EMULATOR} $<TARGET_FILE:lack_of_memory_probe>)
# It shows a message box for a moment. Other tests on the same desktop would mistake it for their own.
set_tests_properties(image.lack_of_memory_ends_the_process PROPERTIES RESOURCE_LOCK desktop TIMEOUT 120)

# image_finds(<name> <what the check says> <image> [<limit in KB>]): tests that the check refuses the image for this reason.
function(image_finds name reason image)
  set(limit_kb 64)
  if(ARGC GREATER 3)
    set(limit_kb ${ARGV3})
  endif()
  add_test(NAME image.finds_${name}
    COMMAND ${ends_with} 1 ${reason} ${image_check} --limit-kb ${limit_kb} $<TARGET_FILE:${image}>)
endfunction()

add_executable(planted_cmov ${planted}/planted_cmov.cpp)
qdix_link(planted_cmov)
image_finds(planted_cmov "none of the 386: cmov" planted_cmov)

add_executable(planted_frame ${planted}/planted_frame.cpp)
qdix_link(planted_frame)
image_finds(planted_frame "could step over the guard page" planted_frame)

# The full import library accepts a function that Windows 95 lacks; the check of the finished exe still finds it.
add_executable(planted_late_import ${planted}/planted_late_import.cpp)
qdix_link(planted_late_import /usr/i686-w64-mingw32/lib/libkernel32.a)
image_finds(planted_late_import "imports kernel32.dll!GetDiskFreeSpaceExA, which the first Windows 95 lacks"
            planted_late_import)

# It also finds a function that Windows 95 only exports as a stub.
add_executable(planted_stub ${planted}/planted_stub.cpp)
qdix_link(planted_stub /usr/i686-w64-mingw32/lib/libkernel32.a)
image_finds(planted_stub "imports kernel32.dll!MoveFileExA, which only fails on Windows 95" planted_stub)
image_finds(planted_wide_stub "imports kernel32.dll!CreateMutexW, which only fails on Windows 95" planted_stub)

add_executable(planted_c_library ${planted}/planted_c_library.cpp)
qdix_link(planted_c_library /usr/i686-w64-mingw32/lib/libmsvcrt.a)
image_finds(planted_c_library "imports msvcrt.dll" planted_c_library)

image_finds(oversize "bytes, more than 1 KB" runtime_probe 1)

# link_refuses(<planted source> <what the linker says>): tests that the link fails for this reason.
function(link_refuses fault reason)
  add_executable(fails_${fault} EXCLUDE_FROM_ALL ${planted}/${fault}.cpp)
  qdix_link(fails_${fault})
  add_test(NAME image.link_refuses_${fault}
    COMMAND ${ends_with} failure ${reason} ${CMAKE_COMMAND} --build ${CMAKE_BINARY_DIR} --target fails_${fault})
  set_tests_properties(image.link_refuses_${fault} PROPERTIES RESOURCE_LOCK shipped_build)
endfunction()

link_refuses(planted_late_import "undefined reference to `_imp__GetDiskFreeSpaceExA@16'")
link_refuses(planted_stub "undefined reference to `_imp__MoveFileExA@12'")
link_refuses(planted_constructor "a global object has a constructor")

# The same sources give the same bytes in any folder.
add_test(NAME image.build_is_reproducible
  COMMAND ${planted}/reproducible.sh ${CMAKE_SOURCE_DIR} $<TARGET_FILE:QDIX> $<TARGET_FILE:undo>
          $<TARGET_FILE:configL> $<TARGET_FILE:help_viewer> $<TARGET_FILE:self_test>)
set_tests_properties(image.build_is_reproducible PROPERTIES TIMEOUT 600)
