# The strict Windows 95: copies of the shipped programs in build/win9x-strict. They import everything from Guard.dll, which
# sits between them and the system (tests/strict95/README.md).
set(strict_dir ${CMAKE_SOURCE_DIR}/build/win9x-strict)
set(strict_generated ${CMAKE_BINARY_DIR}/strict95)
get_property(shipped_programs GLOBAL PROPERTY QDIX_SHIPPED_PROGRAMS)
foreach(program IN LISTS shipped_programs)
  list(APPEND strict_exes $<TARGET_FILE:${program}>)
endforeach()
# Makes the calls that the guard must report; linked like a shipped program.
add_executable(planted tests/strict95/planted/planted.cpp)
qdix_link(planted)
set(strict_script tests/strict95/make_strict.py tests/strict95/portable_exe.py)

set(strict_sources ${strict_generated}/imports.cpp ${strict_generated}/exports.cpp)
add_custom_command(OUTPUT ${strict_generated}/made BYPRODUCTS ${strict_sources} ${strict_generated}/guard.def
  COMMAND ${Python3_EXECUTABLE} ${CMAKE_SOURCE_DIR}/tests/strict95/make_strict.py --output ${strict_dir}
          --generated ${strict_generated} --libraries ${CMAKE_BINARY_DIR}/imports
          --exports ${CMAKE_SOURCE_DIR}/cmake/win95-exports ${strict_exes} $<TARGET_FILE:planted>
  COMMAND ${CMAKE_COMMAND} -E touch ${strict_generated}/made
  DEPENDS ${strict_script} ${shipped_programs} planted ${export_lists} ${import_libraries}
  COMMENT "Copying the programs onto the guard" VERBATIM)
add_custom_target(strict_copies ALL DEPENDS ${strict_generated}/made)

file(GLOB guard_sources CONFIGURE_DEPENDS tests/strict95/guard/*.cpp)
add_library(Guard MODULE ${guard_sources} ${strict_sources} ${strict_generated}/guard.def)
add_dependencies(Guard strict_copies)
target_include_directories(Guard PRIVATE ${CMAKE_SOURCE_DIR})
target_link_libraries(Guard PRIVATE qdix_warnings qdix_windows95 user32 gdi32 kernel32)
# The guarded programs align their stack to 4 bytes only.
target_compile_options(Guard PRIVATE -Os -mstackrealign)
# Far from Wine's libraries: where it displaced one, the end-to-end tests would not find that library's functions.
target_link_options(Guard PRIVATE -static LINKER:--image-base,0x10000000)
set_target_properties(Guard PROPERTIES PREFIX "" LIBRARY_OUTPUT_DIRECTORY ${strict_dir})

add_test(NAME strict95.copies_differ_in_names_only
  COMMAND ${Python3_EXECUTABLE} ${CMAKE_SOURCE_DIR}/tests/strict95/names_only_test.py ${strict_dir} ${strict_exes})
add_test(NAME strict95.finds_planted_faults
  COMMAND ${Python3_EXECUTABLE} ${CMAKE_SOURCE_DIR}/tests/strict95/planted_test.py ${strict_dir}/planted.exe
          ${CMAKE_CROSSCOMPILING_EMULATOR})
set_tests_properties(strict95.finds_planted_faults PROPERTIES RESOURCE_LOCK desktop TIMEOUT 300)
