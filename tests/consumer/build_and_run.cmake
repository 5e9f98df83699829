# SPDX-FileCopyrightText: 2026 the my_classes authors
# SPDX-License-Identifier: MIT

# Builds the consumer one WAY ("shared", "static", "subdirectory" or "fetchcontent") in the empty directory WORK and
# runs it. SOURCE and BUILD are the library's directories, CONFIGURE what every configuration here has to be told.
cmake_minimum_required(VERSION 3.22)

function(run)
    execute_process(COMMAND ${ARGN} OUTPUT_VARIABLE output ERROR_VARIABLE output RESULT_VARIABLE status)
    if(NOT status EQUAL 0)
        list(JOIN ARGN " " command)
        message(FATAL_ERROR "${command}\n${output}\nended with ${status}")
    endif()
endfunction()

function(build_consumer)
    run(${CMAKE_COMMAND} -S ${CMAKE_CURRENT_LIST_DIR} -B ${WORK}/consumer ${CONFIGURE} ${ARGN})
    run(${CMAKE_COMMAND} --build ${WORK}/consumer --parallel 2)
endfunction()

function(run_consumer expected_directory)
    run(${WORK}/consumer/consumer ${expected_directory})
endfunction()

file(REMOVE_RECURSE ${WORK})

if(WAY STREQUAL "shared")
    # Installed, then moved as a whole; neither a host nor its program needs to know where from.
    run(${CMAKE_COMMAND} --install ${BUILD} --prefix ${WORK}/first)
    file(RENAME ${WORK}/first ${WORK}/moved)
    build_consumer(-DMY_CLASSES_FROM=package -DCMAKE_PREFIX_PATH=${WORK}/moved)
    run_consumer(${WORK}/moved/share/my_classes)
elseif(WAY STREQUAL "static")
    run(${CMAKE_COMMAND} -S ${SOURCE} -B ${WORK}/library ${CONFIGURE} -DBUILD_SHARED_LIBS=OFF
        -DMY_CLASSES_BUILD_TESTS=OFF -DMY_CLASSES_BUILD_BENCHMARKS=OFF -DMY_CLASSES_BUILD_EXAMPLES=OFF
        -DCMAKE_INSTALL_PREFIX=${WORK}/installed)
    run(${CMAKE_COMMAND} --build ${WORK}/library --parallel 2)
    run(${CMAKE_COMMAND} --install ${WORK}/library)
    build_consumer(-DMY_CLASSES_FROM=package -DCMAKE_PREFIX_PATH=${WORK}/installed)
    run_consumer(${WORK}/installed/share/my_classes)
    # Now the icons are nowhere on disk.
    file(REMOVE_RECURSE ${WORK}/installed ${WORK}/library)
    run_consumer(:/my_classes)
elseif(WAY STREQUAL "subdirectory")
    build_consumer(-DMY_CLASSES_FROM=subdirectory -DMY_CLASSES_SOURCE=${SOURCE})
    run_consumer(${WORK}/consumer/my_classes/share/my_classes)
elseif(WAY STREQUAL "fetchcontent")
    build_consumer(-DMY_CLASSES_FROM=fetchcontent -DMY_CLASSES_SOURCE=${SOURCE} -DBUILD_SHARED_LIBS=OFF)
    run_consumer(${WORK}/consumer/_deps/my_classes-build/share/my_classes)
endif()
