# How Qt and GoogleTest are built for Windows.
include(${CMAKE_CURRENT_LIST_DIR}/../static-qt/features.cmake)
set(CMAKE_BUILD_TYPE MinSizeRel CACHE STRING "")
set(QT_QMAKE_TARGET_MKSPEC win32-g++ CACHE STRING "")

features(ON direct2d)
features(OFF pkg_config dbus direct2d1_1)
features(OFF tabletevent)  # wants a header that Debian's source leaves out
features(OFF system_freetype)  # Windows has none
