# A program that a document shows is the one that is compiled: -DDOCUMENT=... -DEXAMPLE=...
file(READ ${DOCUMENT} document)
file(READ ${EXAMPLE} example)
string(FIND "${document}" "```cpp\n${example}```" position)
if(position EQUAL -1)
    message(FATAL_ERROR "${DOCUMENT} does not show ${EXAMPLE} as it is.")
endif()
