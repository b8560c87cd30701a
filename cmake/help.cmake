# Makes the manual from the texts in help/: the topics that help.exe contains, and help.htm with its pictures. Only Debian's
# own Python has Debian's Markdown parser; another interpreter that comes first on the path does not.
#   QDIX_TOPIC_STREAM, qdix_topics      the topics as one file, and the target that makes it
#   QDIX_MANUAL_FOLDER, qdix_manual     the folder of help.htm and its pictures, and the target that makes it
find_program(DEBIAN_PYTHON3 python3 PATHS /usr/bin NO_DEFAULT_PATH REQUIRED)

set(QDIX_TOPIC_STREAM ${CMAKE_BINARY_DIR}/help/topics.txt)
set(QDIX_MANUAL_FOLDER ${CMAKE_BINARY_DIR}/manual)
set(make_help ${DEBIAN_PYTHON3} ${CMAKE_SOURCE_DIR}/tools/help/make_help.py --source ${CMAKE_SOURCE_DIR}/help)
file(GLOB help_sources CONFIGURE_DEPENDS help/*.md help/pictures/*.gif tools/help/*.py)

add_custom_command(OUTPUT ${QDIX_TOPIC_STREAM}
  COMMAND ${make_help} --topics ${QDIX_TOPIC_STREAM}
  DEPENDS ${help_sources}
  COMMENT "Making the topics of the help viewer" VERBATIM)
add_custom_target(qdix_topics DEPENDS ${QDIX_TOPIC_STREAM})

# Empties the folder first: otherwise pictures that the manual no longer uses would stay.
add_custom_command(OUTPUT ${QDIX_MANUAL_FOLDER}/help.htm
  COMMAND ${CMAKE_COMMAND} -E rm -rf ${QDIX_MANUAL_FOLDER}
  COMMAND ${make_help} --html ${QDIX_MANUAL_FOLDER}
  DEPENDS ${help_sources}
  COMMENT "Making help.htm" VERBATIM)
add_custom_target(qdix_manual DEPENDS ${QDIX_MANUAL_FOLDER}/help.htm)
if(QDIX_SHIPPED)
  set_target_properties(qdix_manual PROPERTIES EXCLUDE_FROM_ALL FALSE)
endif()

if(NOT WIN32)
  foreach(test IN ITEMS generator manual page drift statements removal settings)
    add_test(NAME help.${test} COMMAND ${DEBIAN_PYTHON3} ${CMAKE_SOURCE_DIR}/tests/help/${test}_test.py)
  endforeach()
endif()
