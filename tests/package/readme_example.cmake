# The program in the README is the one that is compiled as an example.
file(READ ${SOURCE_DIR}/README.md readme)
file(READ ${SOURCE_DIR}/examples/minimal/main.cpp example)
string(FIND "${readme}" "```cpp\n${example}```" position)
if(position EQUAL -1)
    message(FATAL_ERROR "README.md does not show examples/minimal/main.cpp as it is.")
endif()
