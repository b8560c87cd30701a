# The downloads: the list of shipped programs for tools/dist/make_dist.py, and the tests of its output.
get_property(shipped_programs GLOBAL PROPERTY QDIX_SHIPPED_PROGRAMS)
foreach(program IN LISTS shipped_programs)
  list(APPEND shipped_files "\"$<TARGET_FILE:${program}>\"")
endforeach()
list(JOIN shipped_files ", " shipped_files)
file(GENERATE OUTPUT ${CMAKE_BINARY_DIR}/shipped.json
     CONTENT "{\"version\": \"${PROJECT_VERSION}\", \"programs\": [${shipped_files}]}\n")

add_test(NAME dist.downloads
  COMMAND ${Python3_EXECUTABLE} ${CMAKE_SOURCE_DIR}/tests/dist/downloads_test.py ${CMAKE_BINARY_DIR})
add_test(NAME dist.refusals COMMAND ${Python3_EXECUTABLE} ${CMAKE_SOURCE_DIR}/tests/dist/refusals_test.py)
add_test(NAME dist.setup_text COMMAND ${Python3_EXECUTABLE} ${CMAKE_SOURCE_DIR}/tests/dist/setup_text_test.py)
add_test(NAME dist.rescue COMMAND ${Python3_EXECUTABLE} ${CMAKE_SOURCE_DIR}/tests/dist/rescue_test.py)
set_tests_properties(dist.downloads PROPERTIES TIMEOUT 120)
