# Functions that every target of this project is made with.

include(GNUInstallDirs)

# Compiles the headers of Qt once for all targets. A source that lacks an include is found all the same:
# clang-tidy and ./run read the sources without them.
function(tessark_precompile_qt)
    set(source ${PROJECT_BINARY_DIR}/precompiled-qt.cpp)
    file(CONFIGURE OUTPUT ${source} CONTENT "int main() {}\n")
    add_executable(precompiled-qt ${source})
    tessark_common(precompiled-qt)
    target_link_libraries(precompiled-qt PRIVATE Qt${TESSARK_QT_MAJOR}::Widgets)
    target_precompile_headers(precompiled-qt PRIVATE <QtWidgets>)
endfunction()

# Settings that all our code is compiled with: language, visibility, warnings, sanitizers.
function(tessark_common target)
    set_target_properties(${target} PROPERTIES
        CXX_STANDARD 17
        CXX_STANDARD_REQUIRED ON
        CXX_EXTENSIONS OFF
        CXX_VISIBILITY_PRESET hidden
        VISIBILITY_INLINES_HIDDEN ON
        POSITION_INDEPENDENT_CODE ON
    )
    target_compile_features(${target} PUBLIC cxx_std_17)
    target_compile_definitions(${target} PRIVATE
        QT_NO_KEYWORDS
        QT_NO_FOREACH
        QT_NO_CAST_FROM_ASCII
        QT_NO_CAST_TO_ASCII
        QT_NO_NARROWING_CONVERSIONS_IN_CONNECT
        QT_DISABLE_DEPRECATED_BEFORE=0x050F00
    )
    if(CMAKE_CXX_COMPILER_ID MATCHES "GNU|Clang")
        target_compile_options(${target} PRIVATE
            -Wall -Wextra -Wpedantic -Wshadow -Wconversion -Wnon-virtual-dtor
            -Woverloaded-virtual -Wold-style-cast
            $<$<BOOL:${TESSARK_DEVELOPER}>:-Werror>
        )
    endif()
    if(TESSARK_SANITIZE)
        target_compile_options(${target} PRIVATE
            -fsanitize=${TESSARK_SANITIZE} -fno-sanitize-recover=all -fno-omit-frame-pointer)
        target_link_options(${target} PRIVATE -fsanitize=${TESSARK_SANITIZE})
    endif()
    if(TESSARK_COVERAGE)
        target_compile_options(${target} PRIVATE --coverage -O0)
        target_link_options(${target} PRIVATE --coverage)
    endif()
    if(TESSARK_PRECOMPILE_QT AND NOT target STREQUAL "precompiled-qt")
        target_precompile_headers(${target} REUSE_FROM precompiled-qt)
    endif()
endfunction()

# For what is installed: messages and assertions name source files from the root of the tree on,
# wherever the tree lies on the machine that builds it.
function(tessark_hide_source_path target)
    if(CMAKE_CXX_COMPILER_ID MATCHES "GNU|Clang")
        target_compile_options(${target} PRIVATE -fmacro-prefix-map=${PROJECT_SOURCE_DIR}/=)
    endif()
endfunction()

# tessark_add_library(<Name> OUTPUT_NAME <file> FOLDER <folder> [EXPORT <set>] SOURCES ... [LINK ...])
# A versioned shared library, Tessark::<Name>, whose public headers lie in <folder>. Headers that
# end in _p.h are ours alone and are not installed. It is exported with the others unless it names an
# export set of its own.
function(tessark_add_library name)
    cmake_parse_arguments(arg "" "OUTPUT_NAME;FOLDER;EXPORT" "SOURCES;LINK" ${ARGN})
    if(NOT arg_EXPORT)
        set(arg_EXPORT TessarkTargets)
    endif()
    set(target Tessark${name})
    add_library(${target} SHARED ${arg_SOURCES})
    add_library(Tessark::${name} ALIAS ${target})
    tessark_common(${target})
    tessark_hide_source_path(${target})
    string(TOUPPER ${arg_OUTPUT_NAME} upper_name)
    set_target_properties(${target} PROPERTIES
        AUTOMOC ON
        EXPORT_NAME ${name}
        OUTPUT_NAME ${arg_OUTPUT_NAME}
        VERSION ${PROJECT_VERSION}
        SOVERSION ${PROJECT_VERSION_MAJOR}
        DEFINE_SYMBOL TESSARK_BUILDING_${upper_name}
        INSTALL_RPATH $ORIGIN
        LIBRARY_OUTPUT_DIRECTORY ${PROJECT_BINARY_DIR}/lib
    )
    # Each source of Core has constants of its own with the names of others.
    if(TESSARK_UNITY AND NOT name STREQUAL "Core")
        set_target_properties(${target} PROPERTIES UNITY_BUILD ON UNITY_BUILD_BATCH_SIZE 12)
    endif()
    target_include_directories(${target} PUBLIC
        $<BUILD_INTERFACE:${PROJECT_SOURCE_DIR}>
        $<INSTALL_INTERFACE:${CMAKE_INSTALL_INCLUDEDIR}/tessark>
    )
    target_link_libraries(${target} PUBLIC ${arg_LINK} Qt${TESSARK_QT_MAJOR}::Widgets)

    install(TARGETS ${target} EXPORT ${arg_EXPORT}
        LIBRARY DESTINATION ${CMAKE_INSTALL_LIBDIR}
        ARCHIVE DESTINATION ${CMAKE_INSTALL_LIBDIR}
        RUNTIME DESTINATION ${CMAKE_INSTALL_BINDIR}
    )
    foreach(source IN LISTS arg_SOURCES)
        if(source MATCHES "\\.h$" AND NOT source MATCHES "_p\\.h$")
            get_filename_component(subfolder ${arg_FOLDER}/${source} DIRECTORY)
            install(FILES ${source}
                DESTINATION ${CMAKE_INSTALL_INCLUDEDIR}/tessark/${subfolder})
            set_property(GLOBAL APPEND PROPERTY TESSARK_PUBLIC_HEADERS ${arg_FOLDER}/${source})
        endif()
    endforeach()
endfunction()

# tessark_add_test(<folder>/tst_<X> [LINK ...] [SOURCES ...])
# One Qt Test program per file, run on the offscreen platform. A source with a class for moc includes its
# moc file at the end. That is made by hand: for some two hundred programs of one file each, AUTOMOC takes
# longer than the compiler.
function(tessark_add_test path)
    cmake_parse_arguments(arg "" "" "LINK;SOURCES" ${ARGN})
    get_filename_component(name ${path} NAME)
    add_executable(${name} ${path}.cpp ${arg_SOURCES})
    tessark_common(${name})
    if(TESSARK_SANITIZE)
        # What looks at each pointer takes a third of the compiler's time, and is meant for the libraries.
        target_compile_options(${name} PRIVATE -fno-sanitize=null,alignment)
    endif()
    set(moc_folder ${CMAKE_CURRENT_BINARY_DIR}/moc/${name})
    target_include_directories(${name} PRIVATE
        ${PROJECT_SOURCE_DIR} ${PROJECT_SOURCE_DIR}/tests ${moc_folder})
    target_link_libraries(${name} PRIVATE
        ${arg_LINK} Tessark::Property Qt${TESSARK_QT_MAJOR}::Test)
    foreach(source IN ITEMS ${path}.cpp ${arg_SOURCES})
        get_filename_component(moc ${source} NAME_WE)
        file(STRINGS ${source} moc_include REGEX "#include \"${moc}\\.moc\"")
        if(moc_include)
            tessark_generate_moc(${source} ${moc_folder}/${moc}.moc ${name})
        endif()
    endforeach()
    add_test(NAME ${path} COMMAND ${name})
    tessark_set_test_environment(${path} TIMEOUT 300)
endfunction()

# tessark_generate_moc(<source> <output> <target>): what AUTOMOC does for a source that includes its moc
# file.
function(tessark_generate_moc source output target)
    if(TESSARK_QT_MAJOR EQUAL 6)
        qt6_generate_moc(${source} ${output} TARGET ${target})
    else()
        qt5_generate_moc(${source} ${output} TARGET ${target})
    endif()
    target_sources(${target} PRIVATE ${output})
endfunction()

# tessark_set_test_environment(<test> TIMEOUT <seconds>)
# The offscreen platform; and under AddressSanitizer lost memory fails the test, whatever the
# environment of the caller says. Nothing is suppressed.
function(tessark_set_test_environment test)
    cmake_parse_arguments(arg "" "TIMEOUT" "" ${ARGN})
    # Without a folder of its own, Qt warns; it must be closed to others.
    set(runtime ${PROJECT_BINARY_DIR}/tests/runtime)
    file(MAKE_DIRECTORY ${runtime})
    file(CHMOD ${runtime} PERMISSIONS OWNER_READ OWNER_WRITE OWNER_EXECUTE)
    set(environment QT_QPA_PLATFORM=offscreen LC_ALL=C.UTF-8 XDG_RUNTIME_DIR=${runtime}
        ASAN_OPTIONS=detect_leaks=1 LSAN_OPTIONS=)
    set_tests_properties(${test} PROPERTIES
        ENVIRONMENT "${environment}"
        TIMEOUT ${arg_TIMEOUT}
    )
endfunction()
