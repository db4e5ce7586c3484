# What is installed where, as two components: the program, and the calculations as a library that
# any C++ program finds with find_package(Tarnwick) and links as Tarnwick::calc.
include(GNUInstallDirs)
include(CMakePackageConfigHelpers)

set_target_properties(tarnwick_calc PROPERTIES EXPORT_NAME calc)
install(TARGETS tarnwick_calc EXPORT TarnwickConfig
  ARCHIVE DESTINATION ${CMAKE_INSTALL_LIBDIR} COMPONENT library)
install(DIRECTORY src/common src/calc DESTINATION ${CMAKE_INSTALL_INCLUDEDIR}/tarnwick
  COMPONENT library FILES_MATCHING PATTERN "*.h")
set(package_folder ${CMAKE_INSTALL_LIBDIR}/cmake/Tarnwick)
install(EXPORT TarnwickConfig NAMESPACE Tarnwick:: DESTINATION ${package_folder} COMPONENT library)
write_basic_package_version_file(${PROJECT_BINARY_DIR}/TarnwickConfigVersion.cmake
  COMPATIBILITY SameMajorVersion)
install(FILES ${PROJECT_BINARY_DIR}/TarnwickConfigVersion.cmake DESTINATION ${package_folder}
  COMPONENT library)

if(TARNWICK_APP AND TARNWICK_PORTABLE)
  include(cmake/portable.cmake)
  return()
endif()

if(TARNWICK_APP)
  install(TARGETS tarnwick RUNTIME COMPONENT program)
endif()
if(TARNWICK_APP AND NOT WIN32)
  set(resources ${PROJECT_SOURCE_DIR}/resources)
  set(icons ${CMAKE_INSTALL_DATADIR}/icons/hicolor)
  foreach(size 16 24 32 48 64 128 256)
    install(FILES ${resources}/tarnwick-${size}.png DESTINATION ${icons}/${size}x${size}/apps
      RENAME tarnwick.png COMPONENT program)
  endforeach()
  install(FILES ${resources}/tarnwick.svg DESTINATION ${icons}/scalable/apps COMPONENT program)
endif()
if(NOT UNIX OR APPLE)
  return()
endif()

set(filled ${PROJECT_BINARY_DIR}/packaging)
foreach(file tarnwick.desktop tarnwick.metainfo.xml tarnwick.1 copyright changelog)
  configure_file(packaging/linux/${file}.in ${filled}/${file} @ONLY)
endforeach()
find_program(GZIP gzip REQUIRED)
execute_process(COMMAND ${GZIP} -9nkf tarnwick.1 changelog WORKING_DIRECTORY ${filled}
  COMMAND_ERROR_IS_FATAL ANY)
set(documents ${CMAKE_INSTALL_DATADIR}/doc)
foreach(pair program:tarnwick library:libtarnwick-dev)
  string(REPLACE ":" ";" pair ${pair})
  list(POP_FRONT pair component package)
  install(FILES ${filled}/copyright DESTINATION ${documents}/${package} COMPONENT ${component})
  install(FILES ${filled}/changelog.gz DESTINATION ${documents}/${package}
    RENAME changelog.Debian.gz COMPONENT ${component})
endforeach()
install(FILES ${filled}/tarnwick.desktop DESTINATION ${CMAKE_INSTALL_DATADIR}/applications
  COMPONENT program)
install(FILES ${filled}/tarnwick.metainfo.xml DESTINATION ${CMAKE_INSTALL_DATADIR}/metainfo
  RENAME example.tarnwick.Tarnwick.metainfo.xml COMPONENT program)
install(FILES ${filled}/tarnwick.1.gz DESTINATION ${CMAKE_INSTALL_MANDIR}/man1 COMPONENT program)

# Debian packages: tarnwick and libtarnwick-dev.
set(CPACK_GENERATOR DEB)
set(CPACK_PACKAGE_NAME tarnwick)
set(CPACK_PACKAGE_VENDOR ${PRODUCT_MAKER})
set(CPACK_PACKAGE_CONTACT "${PRODUCT_MAKER} <${PRODUCT_EMAIL}>")
set(CPACK_PACKAGE_HOMEPAGE_URL ${PRODUCT_WEB_SITE})
set(CPACK_PACKAGE_DIRECTORY ${PROJECT_BINARY_DIR}/packages)
set(CPACK_STRIP_FILES ON)
set(CPACK_PACKAGING_INSTALL_PREFIX /usr)
set(CPACK_INSTALL_DEFAULT_DIRECTORY_PERMISSIONS
  OWNER_READ OWNER_WRITE OWNER_EXECUTE GROUP_READ GROUP_EXECUTE WORLD_READ WORLD_EXECUTE)
set(CPACK_COMPONENTS_ALL program library)
set(CPACK_DEB_COMPONENT_INSTALL ON)
set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_PACKAGE_RELEASE 1)
set(CPACK_DEBIAN_PROGRAM_PACKAGE_NAME tarnwick)
set(CPACK_DEBIAN_PROGRAM_PACKAGE_SECTION electronics)
set(CPACK_DEBIAN_PROGRAM_PACKAGE_SHLIBDEPS ON)
set(CPACK_DEBIAN_LIBRARY_PACKAGE_NAME libtarnwick-dev)
set(CPACK_DEBIAN_LIBRARY_PACKAGE_SECTION libdevel)
set(CPACK_COMPONENT_PROGRAM_DESCRIPTION "calculators for PIC programs in PBP
Small windows that each answer one question about a peripheral of a PIC
microcontroller: timer, PWM, serial port, A/D converter, comparator reference,
LCD characters. Several copy ready-to-paste PBP text.")
set(CPACK_COMPONENT_LIBRARY_DESCRIPTION "calculations for PIC peripherals, C++ library
The calculations of Tarnwick as a static library with headers and a CMake
package: find_package(Tarnwick), target Tarnwick::calc.")
include(CPack)
