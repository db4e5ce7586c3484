# How Qt and GoogleTest are built for Windows: static, small, and of Qt what desktop windows take.
set(CMAKE_BUILD_TYPE MinSizeRel CACHE STRING "")
set(BUILD_SHARED_LIBS OFF CACHE BOOL "")
set(BUILD_GMOCK OFF CACHE BOOL "")
set(QT_QMAKE_TARGET_MKSPEC win32-g++ CACHE STRING "")
set(QT_BUILD_EXAMPLES OFF CACHE BOOL "")
set(QT_BUILD_TESTS OFF CACHE BOOL "")
set(INPUT_opengl no CACHE STRING "")

set(unused
  pkg_config network sql dbus xml concurrent printsupport vulkan direct2d1_1 icu glib zstd
  graphicsview pdf textodfwriter gif jpeg mdiarea wizard undocommand systemtrayicon calendarwidget
  fontdialog movie sessionmanager)
list(APPEND unused tabletevent)  # wants a header that Debian's source leaves out
list(APPEND unused system_zlib system_png system_jpeg system_freetype system_harfbuzz system_pcre2
  system_doubleconversion)  # Qt's own copies, as Windows has none
foreach(feature IN LISTS unused)
  set(FEATURE_${feature} OFF CACHE BOOL "")
endforeach()
foreach(feature testlib direct2d)
  set(FEATURE_${feature} ON CACHE BOOL "")
endforeach()
