# Finds the Qt major version that was asked for.

if(TESSARK_QT_MAJOR EQUAL 6)
    set(TESSARK_QT_MINIMUM 6.4)
else()
    set(TESSARK_QT_MINIMUM 5.15)
endif()

find_package(Qt${TESSARK_QT_MAJOR} ${TESSARK_QT_MINIMUM} REQUIRED COMPONENTS Core Gui Widgets)

# The library that hosts test with is built where Qt Test is there, and always for our own tests.
if(TESSARK_BUILD_TESTS OR TESSARK_BUILD_TESTING_LIBRARY)
    find_package(Qt${TESSARK_QT_MAJOR} ${TESSARK_QT_MINIMUM} QUIET OPTIONAL_COMPONENTS Test)
endif()
if(TESSARK_BUILD_TESTS AND NOT TARGET Qt${TESSARK_QT_MAJOR}::Test)
    message(FATAL_ERROR "The tests need Qt Test for Qt ${TESSARK_QT_MAJOR}, which is not there. \
Without the tests, configure with -DTESSARK_BUILD_TESTS=OFF.")
endif()
set(TESSARK_HAS_TESTING_LIBRARY ${TESSARK_BUILD_TESTS})
if(TESSARK_BUILD_TESTING_LIBRARY AND TARGET Qt${TESSARK_QT_MAJOR}::Test)
    set(TESSARK_HAS_TESTING_LIBRARY TRUE)
elseif(TESSARK_BUILD_TESTING_LIBRARY)
    message(STATUS "Without Qt Test for Qt ${TESSARK_QT_MAJOR}: no library for tests of panels.")
endif()
