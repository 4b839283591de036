# Everything a builder can choose. Defaults suit a host that adds this tree as a subdirectory;
# the presets turn on what our own developers want.

set(TESSARK_QT_MAJOR 6 CACHE STRING "Qt major version to build against (6 or 5)")
set_property(CACHE TESSARK_QT_MAJOR PROPERTY STRINGS 6 5)
if(NOT TESSARK_QT_MAJOR MATCHES "^[56]$")
    message(FATAL_ERROR "TESSARK_QT_MAJOR is '${TESSARK_QT_MAJOR}'; it must be 6 or 5.")
endif()

option(TESSARK_BUILD_TESTS "Build the tests and the benchmarks" ${PROJECT_IS_TOP_LEVEL})
option(TESSARK_BUILD_EXAMPLES "Build the examples" ${PROJECT_IS_TOP_LEVEL})
option(TESSARK_BUILD_TOOLS "Build the property-panel program" ${PROJECT_IS_TOP_LEVEL})
option(TESSARK_BUILD_TESTING_LIBRARY
    "Build the library that hosts test their panels with, if Qt Test is there" ON)
option(TESSARK_DEVELOPER "Treat warnings as errors" OFF)
option(TESSARK_COVERAGE "Measure line coverage (GCC)" OFF)
option(TESSARK_FUZZ "Build the fuzz targets for libFuzzer (clang)" OFF)
option(TESSARK_PRECOMPILE_QT "Compile Qt's headers once for all sources (with the tests)" OFF)
option(TESSARK_UNITY "Compile sources of the libraries a dozen at a time" OFF)
set(TESSARK_SANITIZE "" CACHE STRING
    "Sanitizers to build with, comma separated (for example address,undefined)")

if(PROJECT_IS_TOP_LEVEL AND NOT CMAKE_BUILD_TYPE AND NOT CMAKE_CONFIGURATION_TYPES)
    set(CMAKE_BUILD_TYPE RelWithDebInfo CACHE STRING "Build type" FORCE)
endif()
