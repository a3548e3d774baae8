# The package that others find: `find_package(physics)` with the libraries as components, and pkg-config.
include(CMakePackageConfigHelpers)

configure_package_config_file(${PROJECT_SOURCE_DIR}/cmake/physics-config.cmake.in physics-config.cmake
  INSTALL_DESTINATION ${PHYSICS_PACKAGE_DIR})
write_basic_package_version_file(physics-config-version.cmake COMPATIBILITY SameMinorVersion)
install(FILES
  ${CMAKE_CURRENT_BINARY_DIR}/physics-config.cmake
  ${CMAKE_CURRENT_BINARY_DIR}/physics-config-version.cmake
  DESTINATION ${PHYSICS_PACKAGE_DIR} COMPONENT development)

# `physics` leaves the location model to its user, so that it requires no other package.
file(RELATIVE_PATH PHYSICS_PREFIX_FROM_PC /${CMAKE_INSTALL_LIBDIR}/pkgconfig /)
function(physics_pkg_config name description requires)
  configure_file(${PROJECT_SOURCE_DIR}/cmake/library.pc.in ${name}.pc @ONLY)
  install(FILES ${CMAKE_CURRENT_BINARY_DIR}/${name}.pc DESTINATION ${CMAKE_INSTALL_LIBDIR}/pkgconfig
    COMPONENT development)
endfunction()
physics_pkg_config(physics "${PROJECT_DESCRIPTION}" "")
physics_pkg_config(LocationModel "Bundled location model of the physics library" "")
if(TARGET CadImporter)
  physics_pkg_config(CadImporter "Reader of BREP and STEP files for the bundled location model" "LocationModel")
endif()
if(TARGET CgnsImporter)
  physics_pkg_config(CgnsImporter "Reader of CGNS files for the bundled location model" "LocationModel")
endif()
