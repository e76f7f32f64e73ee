# Runs PROGRAM and compares what it prints with the comment in SOURCE that follows "// Output:", up to the first empty
# line.
#   cmake -DPROGRAM=EmbedEngine -DSOURCE=EmbedEngine.cpp -P CheckOutput.cmake

file(READ ${SOURCE} expected)
string(REGEX REPLACE "^.*// Output:\n//\n" "" expected "${expected}")
string(REGEX REPLACE "\n\n.*$" "\n" expected "${expected}")
string(REGEX REPLACE "^// " "" expected "${expected}")
string(REPLACE "\n//\n" "\n\n" expected "${expected}")
string(REPLACE "\n// " "\n" expected "${expected}")

execute_process(COMMAND ${PROGRAM} OUTPUT_VARIABLE printed RESULT_VARIABLE status)
string(REPLACE "\r\n" "\n" printed "${printed}")
if(NOT status EQUAL 0 OR NOT printed STREQUAL expected)
    message(FATAL_ERROR "${PROGRAM} ended with status ${status} and printed\n${printed}\ninstead of\n${expected}")
endif()
