# The installed package: CMake config, version file and pkg-config files, all relocatable.

include(CMakePackageConfigHelpers)

set(TESSARK_CMAKE_INSTALL_DIR ${CMAKE_INSTALL_LIBDIR}/cmake/Tessark)

# tessark_install_pkgconfig(<Name> OUTPUT_NAME <file> REQUIRES <text>)
function(tessark_install_pkgconfig name)
    cmake_parse_arguments(arg "" "OUTPUT_NAME;REQUIRES" "" ${ARGN})
    set(PC_NAME Tessark${name})
    set(PC_LIBRARY ${arg_OUTPUT_NAME})
    set(PC_REQUIRES ${arg_REQUIRES})
    file(RELATIVE_PATH PC_PREFIX_FROM_PC_DIR
        /${CMAKE_INSTALL_LIBDIR}/pkgconfig /)
    string(REGEX REPLACE "/$" "" PC_PREFIX_FROM_PC_DIR ${PC_PREFIX_FROM_PC_DIR})
    string(TOLOWER ${name} lower_name)
    set(file ${PROJECT_BINARY_DIR}/tessark-${lower_name}.pc)
    configure_file(${PROJECT_SOURCE_DIR}/cmake/tessark.pc.in ${file} @ONLY)
    install(FILES ${file} DESTINATION ${CMAKE_INSTALL_LIBDIR}/pkgconfig)
endfunction()

function(tessark_install_package)
    configure_package_config_file(
        ${PROJECT_SOURCE_DIR}/cmake/TessarkConfig.cmake.in
        ${PROJECT_BINARY_DIR}/TessarkConfig.cmake
        INSTALL_DESTINATION ${TESSARK_CMAKE_INSTALL_DIR}
    )
    write_basic_package_version_file(
        ${PROJECT_BINARY_DIR}/TessarkConfigVersion.cmake
        COMPATIBILITY SameMinorVersion
    )
    install(FILES
        ${PROJECT_BINARY_DIR}/TessarkConfig.cmake
        ${PROJECT_BINARY_DIR}/TessarkConfigVersion.cmake
        DESTINATION ${TESSARK_CMAKE_INSTALL_DIR}
    )
    install(EXPORT TessarkTargets
        NAMESPACE Tessark::
        DESTINATION ${TESSARK_CMAKE_INSTALL_DIR}
    )
    if(TESSARK_HAS_TESTING_LIBRARY)
        # Apart, since only hosts that ask for it need Qt Test.
        install(EXPORT TessarkPropertyTestTargets
            NAMESPACE Tessark::
            DESTINATION ${TESSARK_CMAKE_INSTALL_DIR}
        )
        tessark_install_pkgconfig(PropertyTest OUTPUT_NAME propertytest
            REQUIRES "tessark-property = ${PROJECT_VERSION}, Qt${TESSARK_QT_MAJOR}Test >= ${TESSARK_QT_MINIMUM}")
    endif()
    tessark_install_pkgconfig(Core OUTPUT_NAME core
        REQUIRES "Qt${TESSARK_QT_MAJOR}Widgets >= ${TESSARK_QT_MINIMUM}")
    tessark_install_pkgconfig(Property OUTPUT_NAME property
        REQUIRES "tessark-core = ${PROJECT_VERSION}")
    tessark_install_pkgconfig(PropertyHost OUTPUT_NAME propertyhost
        REQUIRES "tessark-property = ${PROJECT_VERSION}")
endfunction()
