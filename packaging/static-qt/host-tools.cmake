# Qt's tools that run during the build are those of this machine.
file(GLOB host_tools /usr/lib/*/cmake/Qt6CoreTools)
cmake_path(GET host_tools PARENT_PATH host_packages)
set(QT_HOST_PATH /usr)
set(QT_HOST_PATH_CMAKE_DIR ${host_packages})
