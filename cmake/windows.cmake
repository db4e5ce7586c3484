# What Windows shows and asks of a program's file: icon, version, manifest. Programs link it.
enable_language(RC)
set(filled ${PROJECT_BINARY_DIR}/windows)
configure_file(packaging/windows/tarnwick.rc.in ${filled}/tarnwick.rc @ONLY)
configure_file(packaging/windows/tarnwick.manifest.in ${filled}/tarnwick.manifest @ONLY)
add_library(tarnwick_windows OBJECT ${filled}/tarnwick.rc)
set_source_files_properties(${filled}/tarnwick.rc PROPERTIES
  OBJECT_DEPENDS "${filled}/tarnwick.manifest;${PROJECT_SOURCE_DIR}/resources/tarnwick.ico")
