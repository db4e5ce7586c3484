# What Qt has for a desktop on Linux: an X server's windows and input methods, the desktop's fonts and
# colours, and D-Bus for assistive tools.
include(${CMAKE_CURRENT_LIST_DIR}/../static-qt/features.cmake)
set(CMAKE_BUILD_TYPE Release CACHE STRING "")
set(QT_FORCE_FIND_TOOLS ON CACHE BOOL "")

features(ON xcb xkbcommon_x11 dbus accessibility_atspi_bridge fontconfig system_freetype)
features(OFF xlib xcb_xlib)  # xcb alone speaks to the X server, sooner; libraries.patch has the rest
features(OFF dbus_linked)  # its library is loaded where a bus is asked for
features(OFF mimetype_database system_libb2 system_xcb_xinput)
features(OFF egl eglfs linuxfb vnc gbm kms evdev libinput libudev mtdev tslib gtk3 journald syslog)
