# The topics of the help as one stream, made of the texts in help/.
find_package(Python3 REQUIRED COMPONENTS Interpreter)
set(QDIX_TOPIC_STREAM ${CMAKE_BINARY_DIR}/help/topics.txt)
file(GLOB help_texts CONFIGURE_DEPENDS help/*)
file(MAKE_DIRECTORY ${CMAKE_BINARY_DIR}/help)
add_custom_command(OUTPUT ${QDIX_TOPIC_STREAM}
  COMMAND ${Python3_EXECUTABLE} ${CMAKE_SOURCE_DIR}/tools/help/make_help.py --source ${CMAKE_SOURCE_DIR}/help
          --topics ${QDIX_TOPIC_STREAM}
  DEPENDS tools/help/make_help.py ${help_texts}
  COMMENT "Making the topics of the help" VERBATIM)
add_custom_target(qdix_topics DEPENDS ${QDIX_TOPIC_STREAM})
