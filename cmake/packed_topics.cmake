# Packs the topic stream (QDIX_TOPIC_STREAM, target qdix_topics) into the form that help.exe contains.
#   QDIX_PACKED_TOPICS, qdix_packed_topics      the packed stream as a file, and the target that makes it
find_package(Python3 REQUIRED COMPONENTS Interpreter)
set(QDIX_PACKED_TOPICS ${CMAKE_BINARY_DIR}/help/topics.bin)
set(topic_packer ${CMAKE_SOURCE_DIR}/tools/help/pack_topics.py)
add_custom_command(OUTPUT ${QDIX_PACKED_TOPICS}
  COMMAND ${Python3_EXECUTABLE} ${topic_packer} ${QDIX_TOPIC_STREAM} ${QDIX_PACKED_TOPICS}
  DEPENDS ${topic_packer} ${QDIX_TOPIC_STREAM}
  COMMENT "Packing the topics of the help viewer" VERBATIM)
add_custom_target(qdix_packed_topics DEPENDS ${QDIX_PACKED_TOPICS})
add_dependencies(qdix_packed_topics qdix_topics)
