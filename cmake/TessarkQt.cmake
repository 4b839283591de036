# Finds the Qt major version that was asked for.

if(TESSARK_QT_MAJOR EQUAL 6)
    set(TESSARK_QT_MINIMUM 6.4)
else()
    set(TESSARK_QT_MINIMUM 5.15)
endif()

set(tessark_qt_components Core Gui Widgets)
if(TESSARK_BUILD_TESTS)
    list(APPEND tessark_qt_components Test)
endif()
find_package(Qt${TESSARK_QT_MAJOR} ${TESSARK_QT_MINIMUM} REQUIRED
    COMPONENTS ${tessark_qt_components})

# The library that hosts test with is built where Qt Test is there, and always for our own tests.
if(TESSARK_BUILD_TESTING_LIBRARY)
    find_package(Qt${TESSARK_QT_MAJOR} ${TESSARK_QT_MINIMUM} QUIET OPTIONAL_COMPONENTS Test)
endif()
set(TESSARK_HAS_TESTING_LIBRARY ${TESSARK_BUILD_TESTS})
if(TESSARK_BUILD_TESTING_LIBRARY AND TARGET Qt${TESSARK_QT_MAJOR}::Test)
    set(TESSARK_HAS_TESTING_LIBRARY TRUE)
endif()
