# SPDX-FileCopyrightText: 2026 The Clipvane developers
# SPDX-License-Identifier: MIT

# Installs the logic into a folder of the test's own, compiles each of its public headers by itself,
# builds examples/list against it as another program would, and lists the sample timeline with it.
# Without a BUILD_DIR to install from, the logic is expected where the system's packages put it.
cmake_minimum_required(VERSION 3.25)

function(run)
    execute_process(COMMAND ${ARGN} RESULT_VARIABLE result OUTPUT_VARIABLE output
                    ERROR_VARIABLE output)
    if(NOT result EQUAL 0)
        message(FATAL_ERROR "${ARGN}\nended with ${result}:\n${output}")
    endif()
    set(output "${output}" PARENT_SCOPE)
endfunction()

# A library with sanitizers needs a program with them.
set(flags "")
if(SANITIZERS)
    set(flags -fsanitize=${SANITIZERS})
endif()

file(REMOVE_RECURSE ${WORK_DIR})
file(MAKE_DIRECTORY ${WORK_DIR})
set(prefix "")
if(BUILD_DIR)
    set(prefix -D CMAKE_PREFIX_PATH=${WORK_DIR}/prefix)
    run(${CMAKE_COMMAND} --install ${BUILD_DIR} --component core --prefix ${WORK_DIR}/prefix)
endif()

# The program is copied away from Clipvane's sources, and its build has a file for each header.
set(headers ${WORK_DIR}/prefix/include)
if(NOT BUILD_DIR)
    set(headers /usr/include)
endif()
file(GLOB_RECURSE public RELATIVE ${headers} ${headers}/clipvane/*.h)
list(FILTER public EXCLUDE REGEX "/detail/")
list(LENGTH public count)
if(count LESS 15)
    message(FATAL_ERROR "Installed were only the headers ${public}")
endif()
file(COPY ${SOURCE_DIR}/examples/list DESTINATION ${WORK_DIR})
set(sources "")
foreach(header IN LISTS public)
    string(MAKE_C_IDENTIFIER ${header} name)
    file(WRITE ${WORK_DIR}/list/${name}.cpp "#include <${header}>\n#include <${header}>\n")
    string(APPEND sources " ${name}.cpp")
endforeach()
file(APPEND ${WORK_DIR}/list/CMakeLists.txt "target_sources(list PRIVATE${sources})\n")
run(${CMAKE_COMMAND} -S ${WORK_DIR}/list -B ${WORK_DIR}/build -G Ninja ${prefix}
    -D CMAKE_CXX_COMPILER=${CXX_COMPILER} -D CMAKE_CXX_FLAGS=${flags})
run(${CMAKE_COMMAND} --build ${WORK_DIR}/build)
run(${WORK_DIR}/build/list ${SOURCE_DIR}/examples/timelines/harbour.edl)

if(NOT output MATCHES "^8 events at 25 fps \\(File\\)\n")
    message(FATAL_ERROR "list said:\n${output}")
endif()
if(NOT output MATCHES "\n[0-9]+  B002C011  AA/V  10:30:02:17 10:30:06:17  01:00:17:00 01:00:21:00  [^\n]+\n$")
    message(FATAL_ERROR "list lacks the last event:\n${output}")
endif()
