# What all our targets have in common, so that it is said once.

find_program(PHYSICS_CCACHE ccache)
mark_as_advanced(PHYSICS_CCACHE)

# Settings of one target of ours; nothing global, so that a project which includes us keeps its own.
function(physics_target target)
  target_compile_features(${target} PUBLIC cxx_std_17 PRIVATE cxx_std_20)
  set_target_properties(${target} PROPERTIES
    CXX_EXTENSIONS OFF
    CXX_VISIBILITY_PRESET hidden
    VISIBILITY_INLINES_HIDDEN ON
    POSITION_INDEPENDENT_CODE ON)
  if(PROJECT_IS_TOP_LEVEL)
    target_compile_options(${target} PRIVATE -Wall -Wextra -Wpedantic -Wconversion -Wshadow)
    # GCC 12 sees overlapping copies in the inlined `"literal" + string` of its own library; there are none.
    target_compile_options(${target} PRIVATE $<$<CXX_COMPILER_ID:GNU>:-Wno-restrict>)
    if(PHYSICS_CCACHE)
      set_target_properties(${target} PROPERTIES CXX_COMPILER_LAUNCHER ${PHYSICS_CCACHE})
    endif()
  endif()
  if(PHYSICS_WARNINGS_AS_ERRORS)
    set_target_properties(${target} PROPERTIES COMPILE_WARNING_AS_ERROR ON)
  endif()
  target_include_directories(${target} PUBLIC $<BUILD_INTERFACE:${PROJECT_SOURCE_DIR}>)
endfunction()

# What belongs to one of the Debian packages is installed with its component: libraries, development, program, python.
# An installed file finds our libraries from where it lies, so that a prefix can be moved. The target
# `physics-installable` builds all that is installed.
if(PHYSICS_INSTALL)
  add_custom_target(physics-installable)
endif()
function(physics_installed target folder)
  file(RELATIVE_PATH libraries /${folder} /${CMAKE_INSTALL_LIBDIR})
  set_target_properties(${target} PROPERTIES INSTALL_RPATH $ORIGIN/${libraries})
  add_dependencies(physics-installable ${target})
endfunction()

# Installs a target with its public headers, which are included from the root of the tree here and afterwards. The
# target becomes a component of the package, by its own name.
function(physics_install target)
  target_sources(${target} PUBLIC FILE_SET HEADERS BASE_DIRS ${PROJECT_SOURCE_DIR} FILES ${ARGN})
  add_library(physics::${target} ALIAS ${target})
  if(NOT PHYSICS_INSTALL)
    return()
  endif()
  install(TARGETS ${target} EXPORT ${target}
    LIBRARY DESTINATION ${CMAKE_INSTALL_LIBDIR} COMPONENT libraries NAMELINK_COMPONENT development
    FILE_SET HEADERS DESTINATION ${CMAKE_INSTALL_INCLUDEDIR} COMPONENT development)
  install(EXPORT ${target} NAMESPACE physics:: FILE ${target}-targets.cmake DESTINATION ${PHYSICS_PACKAGE_DIR}
    COMPONENT development)
endfunction()

# A library of ours twice from one compilation: `<name>-objects`, which tests link because it hides
# nothing from them, and the versioned shared library `<name>`, which everybody else links and which is
# installed with its public HEADERS as a component of its name. The global property PHYSICS_LIBRARIES lists
# them all.
function(physics_library name)
  cmake_parse_arguments(PARSE_ARGV 1 arg "" "" "SOURCES;HEADERS;PUBLIC;PRIVATE")
  add_library(${name}-objects OBJECT ${arg_SOURCES})
  physics_target(${name}-objects)
  target_link_libraries(${name}-objects PUBLIC ${arg_PUBLIC} PRIVATE ${arg_PRIVATE})

  add_library(${name} SHARED)
  physics_target(${name})
  set_target_properties(${name} PROPERTIES
    VERSION ${PROJECT_VERSION}
    SOVERSION ${PROJECT_VERSION_MAJOR})
  target_link_libraries(${name} PUBLIC ${arg_PUBLIC} PRIVATE ${name}-objects ${arg_PRIVATE})
  target_link_options(${name} PRIVATE "LINKER:--version-script=${PROJECT_SOURCE_DIR}/cmake/exports.map")
  set_target_properties(${name} PROPERTIES LINK_DEPENDS ${PROJECT_SOURCE_DIR}/cmake/exports.map)
  set_property(GLOBAL APPEND PROPERTY PHYSICS_LIBRARIES ${name})
  physics_install(${name} ${arg_HEADERS})
  if(PHYSICS_INSTALL)
    physics_installed(${name} ${CMAKE_INSTALL_LIBDIR})
  endif()
endfunction()
