# Debian packages, one for each component of the installation; `cpack` in the build folder of the preset `packages`
# makes them.
set(debian_version ${PROJECT_VERSION}-1)
set(debian_libraries libphysics${PROJECT_VERSION_MAJOR})

set(CPACK_GENERATOR DEB)
set(CPACK_PACKAGE_CONTACT "The developers of physics <physics@example.org>")
set(CPACK_PACKAGE_DESCRIPTION_SUMMARY ${PROJECT_DESCRIPTION})
set(CPACK_PACKAGE_DIRECTORY ${PROJECT_BINARY_DIR}/debian)
set(CPACK_PACKAGING_INSTALL_PREFIX /usr)
set(CPACK_STRIP_FILES ON)
set(CPACK_DEB_COMPONENT_INSTALL ON)
set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_PACKAGE_RELEASE 1)
set(CPACK_COMPONENTS_ALL)

# `depends` comes on top of the libraries that the files of the component turn out to use.
function(physics_debian_package component name section depends description)
  string(TOUPPER ${component} key)
  set(CPACK_DEBIAN_${key}_PACKAGE_NAME ${name} PARENT_SCOPE)
  set(CPACK_DEBIAN_${key}_PACKAGE_SECTION ${section} PARENT_SCOPE)
  set(CPACK_DEBIAN_${key}_PACKAGE_DEPENDS ${depends} PARENT_SCOPE)
  set(CPACK_COMPONENT_${key}_DESCRIPTION ${description} PARENT_SCOPE)
  set(CPACK_COMPONENTS_ALL ${CPACK_COMPONENTS_ALL} ${component} PARENT_SCOPE)
  install(FILES ${PROJECT_SOURCE_DIR}/LICENSE DESTINATION ${CMAKE_INSTALL_DATADIR}/doc/${name} RENAME copyright
    COMPONENT ${component})
endfunction()

physics_debian_package(libraries ${debian_libraries} libs ""
  "The library, its bundled location model, and readers of geometry and mesh files.")
physics_debian_package(development libphysics-dev libdevel "${debian_libraries} (= ${debian_version})"
  "Headers, the CMake package and the pkg-config files of the library.")
if(TARGET physics-case)
  physics_debian_package(program physics-case science "${debian_libraries} (= ${debian_version})"
    "Builds, checks, compares, saves and lists set-ups from the command line.")
endif()
if(TARGET PythonModule)
  physics_debian_package(python python3-physics python "${debian_libraries} (= ${debian_version}), python3 (>= 3.11), python3 (<< 3.12)"
    "The library as a Python module.")
endif()

# The libraries that files of ours use are found out; our own are not in any package yet.
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)
get_property(debian_names GLOBAL PROPERTY PHYSICS_LIBRARIES)
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS_PRIVATE_DIRS)
foreach(name ${debian_names})
  get_target_property(folder ${name} BINARY_DIR)
  list(APPEND CPACK_DEBIAN_PACKAGE_SHLIBDEPS_PRIVATE_DIRS ${folder})
endforeach()

include(CPack)
