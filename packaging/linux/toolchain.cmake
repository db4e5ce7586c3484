include(${CMAKE_CURRENT_LIST_DIR}/../static-qt/host-tools.cmake)
