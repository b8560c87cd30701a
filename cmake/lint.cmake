# Checks format, static analysis, include direction, sizes and wording, as tests of the sanitizer build.
if(QDIX_SANITIZE)
  find_package(Python3 REQUIRED COMPONENTS Interpreter)
  set(lint ${CMAKE_SOURCE_DIR}/tools/lint)
  add_test(NAME lint.format COMMAND ${lint}/format_check.sh)
  add_test(NAME lint.includes COMMAND ${Python3_EXECUTABLE} ${lint}/include_direction.py ${CMAKE_SOURCE_DIR})
  add_test(NAME lint.includes_finds_planted_faults
    COMMAND ${Python3_EXECUTABLE} ${CMAKE_SOURCE_DIR}/tests/lint/include_direction_test.py)
  add_test(NAME lint.sizes COMMAND ${Python3_EXECUTABLE} ${lint}/file_sizes.py ${CMAKE_SOURCE_DIR})
  add_test(NAME lint.plain_words COMMAND ${Python3_EXECUTABLE} ${lint}/plain_words.py ${CMAKE_SOURCE_DIR})
  add_test(NAME lint.plain_words_finds_planted_words
    COMMAND ${Python3_EXECUTABLE} ${CMAKE_SOURCE_DIR}/tests/lint/plain_words_test.py)
  add_test(NAME lint.icon COMMAND ${Python3_EXECUTABLE} ${CMAKE_SOURCE_DIR}/tests/lint/icon_test.py)
  add_test(NAME lint.tidy_looks_again_after_changes
    COMMAND ${Python3_EXECUTABLE} ${CMAKE_SOURCE_DIR}/tests/lint/tidy_test.py)
  # Only Debian's own interpreter has Debian's libclang.
  add_test(NAME lint.mutation_changes_what_it_says
    COMMAND ${DEBIAN_PYTHON3} ${CMAKE_SOURCE_DIR}/tests/lint/mutation_test.py)
  add_test(NAME lint.tidy COMMAND ${Python3_EXECUTABLE} ${lint}/tidy.py ${CMAKE_BINARY_DIR})
  add_test(NAME lint.tidy_win32 COMMAND ${Python3_EXECUTABLE} ${lint}/tidy.py ${CMAKE_SOURCE_DIR}/build/win9x)
  set_tests_properties(lint.tidy lint.tidy_win32 PROPERTIES TIMEOUT 1500 RUN_SERIAL TRUE)
endif()
