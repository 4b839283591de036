# cmake -DSOURCE=<file> -P refused.cmake -- <compiler> <option>...: fails unless the compiler refuses
# the file for all of the reasons below.
set(compile)
set(collecting FALSE)
math(EXPR last "${CMAKE_ARGC} - 1")
foreach(index RANGE ${last})
    if(collecting)
        list(APPEND compile "${CMAKE_ARGV${index}}")
    elseif(CMAKE_ARGV${index} STREQUAL "--")
        set(collecting TRUE)
    endif()
endforeach()

execute_process(COMMAND ${compile} ${SOURCE}
    RESULT_VARIABLE result OUTPUT_VARIABLE output ERROR_VARIABLE output)
if(result EQUAL 0)
    message(FATAL_ERROR "${SOURCE} was compiled.")
endif()
foreach(reason
        "StructField<unsigned int"
        "StructField<long long"
        "StructField<char"
        "StructField<int ?\\*"
        "StructField<Nested"
        "bindStruct: no row shows values of this type"
        "bindStruct: give the texts of the enumeration's values"
        "bindStruct: the values of this enumeration do not fit into an int"
        "bindStruct: a row cannot edit a const member"
        "bindStruct: only a nested struct makes a group"
        "bindStruct: only enumerations have choices")
    if(NOT output MATCHES "${reason}")
        message(FATAL_ERROR "${SOURCE} was refused, but not for \"${reason}\":\n${output}")
    endif()
endforeach()
