# Shipped programs: our own runtime instead of a C library, import libraries reduced to the exports of the first
# Windows 95, and a check of each finished exe.
find_program(CROSS_OBJCOPY i686-w64-mingw32-objcopy REQUIRED)
find_program(CROSS_OBJDUMP i686-w64-mingw32-objdump REQUIRED)
find_program(CROSS_NM i686-w64-mingw32-nm REQUIRED)
find_program(CROSS_STRIP i686-w64-mingw32-strip REQUIRED)
find_package(Python3 REQUIRED COMPONENTS Interpreter)
include(cmake/packed_topics.cmake)

file(GLOB runtime_sources CONFIGURE_DEPENDS src/runtime/*.cpp)
# Object files, not an archive: callers find them in any link order, and the linker removes what nothing calls.
add_library(qdix_runtime OBJECT ${runtime_sources})
target_include_directories(qdix_runtime PRIVATE src)
target_link_libraries(qdix_runtime PRIVATE qdix_warnings qdix_shipped)
# The compiler would turn the loops of these functions into calls of the functions themselves.
target_compile_options(qdix_runtime PRIVATE -fno-builtin -fno-tree-loop-distribute-patterns)

# 64-bit division and the stack probe come from the compiler's own library, without its unwind tables: nothing unwinds
# here.
execute_process(COMMAND ${CMAKE_CXX_COMPILER} -print-file-name=libgcc.a
                OUTPUT_VARIABLE libgcc OUTPUT_STRIP_TRAILING_WHITESPACE COMMAND_ERROR_IS_FATAL ANY)
set(reduced_libgcc ${CMAKE_BINARY_DIR}/libgcc_no_unwind.a)
add_custom_command(OUTPUT ${reduced_libgcc}
  COMMAND ${CROSS_OBJCOPY} -R .eh_frame ${libgcc} ${reduced_libgcc}
  COMMENT "Reducing libgcc" VERBATIM)

set(import_dlls kernel32 user32 gdi32 comctl32 comdlg32 shell32 advapi32)
file(GLOB export_lists CONFIGURE_DEPENDS ${CMAKE_SOURCE_DIR}/cmake/win95-exports/*.txt)
foreach(dll IN LISTS import_dlls)
  list(APPEND import_libraries ${CMAKE_BINARY_DIR}/imports/lib${dll}.a)
endforeach()
add_custom_command(OUTPUT ${import_libraries}
  COMMAND ${Python3_EXECUTABLE} ${CMAKE_SOURCE_DIR}/tools/import_libs/reduce.py
          --exports ${CMAKE_SOURCE_DIR}/cmake/win95-exports --libraries /usr/i686-w64-mingw32/lib
          --output ${CMAKE_BINARY_DIR}/imports ${import_dlls}
  DEPENDS tools/import_libs/reduce.py tools/import_libs/export_lists.py ${export_lists}
  COMMENT "Reducing the import libraries to Windows 95" VERBATIM)
add_custom_target(win95_libraries DEPENDS ${import_libraries} ${reduced_libgcc})

# Otherwise CMake would add the full import libraries itself.
set(CMAKE_CXX_STANDARD_LIBRARIES "")
set(ship_link_flags
  -flto-partition=one -nostdlib -nostartfiles -Wl,-e,_start -Wl,--gc-sections -Wl,--subsystem,windows:4.0
  -Wl,--major-os-version,4,--minor-os-version,0
  -Wl,--disable-reloc-section -Wl,--disable-dynamicbase -Wl,--disable-nxcompat -Wl,--no-insert-timestamp
  ${CMAKE_SOURCE_DIR}/src/runtime/noctors.ld)

# qdix_link(<target>): links a target as a shipped program.
function(qdix_link target)
  target_include_directories(${target} PRIVATE ${CMAKE_SOURCE_DIR}/src)
  target_link_libraries(${target} PRIVATE qdix_warnings qdix_shipped)
  target_link_options(${target} PRIVATE ${ship_link_flags})
  # By path: with -l the linker would silently take the full libraries.
  target_link_libraries(${target} PRIVATE ${ARGN} qdix_runtime ${reduced_libgcc} ${import_libraries})
  set_target_properties(${target} PROPERTIES SUFFIX ".exe" LINK_DEPENDS ${CMAKE_SOURCE_DIR}/src/runtime/noctors.ld)
  # Writes the function names to a file beside the exe. Tests use it to name an address in the exe.
  add_custom_command(TARGET ${target} POST_BUILD
    COMMAND ${CROSS_NM} -C -n $<TARGET_FILE:${target}> > $<TARGET_FILE:${target}>.symbols
    COMMAND ${CROSS_STRIP} -p $<TARGET_FILE:${target}> VERBATIM)
  add_dependencies(${target} win95_libraries)
endfunction()

# qdix_ship(<name> [OUTPUT <name>] LIMIT_KB <n> SOURCES <file>... [LIBRARIES <target>...]): adds a shipped program and its
# image check. OUTPUT is the name of the exe where it differs from the target, for example "help", which CMake reserves.
function(qdix_ship name)
  cmake_parse_arguments(PARSE_ARGV 1 ship "" "OUTPUT;LIMIT_KB" "SOURCES;LIBRARIES")
  add_executable(${name} ${ship_SOURCES})
  qdix_link(${name} ${ship_LIBRARIES})
  if(ship_OUTPUT)
    set_target_properties(${name} PROPERTIES OUTPUT_NAME ${ship_OUTPUT})
  endif()
  set_property(GLOBAL APPEND PROPERTY QDIX_SHIPPED_PROGRAMS ${name})
  add_test(NAME image.${name}
    COMMAND ${Python3_EXECUTABLE} ${CMAKE_SOURCE_DIR}/tools/image_check/image_check.py
            --exports ${CMAKE_SOURCE_DIR}/cmake/win95-exports --limit-kb ${ship_LIMIT_KB} $<TARGET_FILE:${name}>)
endfunction()
