# How Qt is built into a program's one file, whatever the system: static, small, and of Qt what
# desktop windows take.
set(BUILD_SHARED_LIBS OFF CACHE BOOL "")
set(BUILD_GMOCK OFF CACHE BOOL "")
set(QT_BUILD_EXAMPLES OFF CACHE BOOL "")
set(QT_BUILD_TESTS OFF CACHE BOOL "")
set(INPUT_opengl no CACHE STRING "")

# features ON|OFF NAME...
function(features value)
  foreach(feature IN LISTS ARGN)
    set(FEATURE_${feature} ${value} CACHE BOOL "")
  endforeach()
endfunction()

features(ON testlib)
features(OFF network sql xml concurrent printsupport vulkan icu glib zstd graphicsview pdf
  textodfwriter gif jpeg mdiarea wizard undocommand systemtrayicon calendarwidget fontdialog movie
  sessionmanager)
# Qt's own copies instead.
features(OFF system_zlib system_png system_jpeg system_harfbuzz system_pcre2 system_doubleconversion)
