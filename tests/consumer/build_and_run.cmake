# SPDX-FileCopyrightText: 2026 the my_classes authors
# SPDX-License-Identifier: MIT

# Builds the consumer one WAY ("shared", "static", "subdirectory" or "fetchcontent") in the empty directory WORK and
# runs it. SOURCE and BUILD are the library's directories, CONFIGURE what every configuration here has to be told,
# COMPILER the one to use without CMake.
cmake_minimum_required(VERSION 3.22)

function(run)
    execute_process(COMMAND ${ARGN} OUTPUT_VARIABLE output ERROR_VARIABLE output RESULT_VARIABLE status)
    if(NOT status EQUAL 0)
        list(JOIN ARGN " " command)
        message(FATAL_ERROR "${command}\n${output}\nended with ${status}")
    endif()
    set(output "${output}" PARENT_SCOPE)
endfunction()

function(build_consumer)
    run(${CMAKE_COMMAND} -S ${CMAKE_CURRENT_LIST_DIR} -B ${WORK}/consumer ${CONFIGURE} ${ARGN})
    run(${CMAKE_COMMAND} --build ${WORK}/consumer --parallel 2)
endfunction()

function(run_consumer expected_directory)
    run(${WORK}/consumer/consumer ${expected_directory})
endfunction()

function(refuse_component prefix)
    execute_process(
        COMMAND ${CMAKE_COMMAND} -S ${CMAKE_CURRENT_LIST_DIR} -B ${WORK}/refused ${CONFIGURE}
            -DMY_CLASSES_FROM=package -DCMAKE_PREFIX_PATH=${prefix} -DMY_CLASSES_COMPONENTS=Spreadsheet
        OUTPUT_VARIABLE output ERROR_VARIABLE output RESULT_VARIABLE status)
    if(status EQUAL 0 OR NOT output MATCHES "no component \"Spreadsheet\"")
        message(FATAL_ERROR "An unknown component is not refused: ${output}")
    endif()
endfunction()

# Also finds its library by itself, as the installed program does.
function(build_with_pkg_config prefix expected_directory)
    file(GLOB_RECURSE pc_file ${prefix}/my_classes.pc)
    get_filename_component(pc_directory ${pc_file} DIRECTORY)
    set(ENV{PKG_CONFIG_PATH} ${pc_directory})
    run(pkg-config --cflags --libs my_classes)
    separate_arguments(flags UNIX_COMMAND "${output}")
    run(${COMPILER} -std=c++17 -fPIC ${CMAKE_CURRENT_LIST_DIR}/main.cpp -o ${WORK}/consumer/by_pkg_config
        ${flags} -Wl,-rpath,${pc_directory}/..)
    run(${WORK}/consumer/by_pkg_config ${expected_directory})
endfunction()

function(expect_files directory)
    file(GLOB_RECURSE files LIST_DIRECTORIES true RELATIVE ${directory} ${directory}/*)
    if(NOT files STREQUAL "${ARGN}")
        message(FATAL_ERROR "${directory} holds \"${files}\", not \"${ARGN}\"")
    endif()
endfunction()

file(REMOVE_RECURSE ${WORK})

if(WAY STREQUAL "shared")
    # Installed, then moved as a whole; neither a host nor its program needs to know where from.
    run(${CMAKE_COMMAND} --install ${BUILD} --prefix ${WORK}/first)
    file(RENAME ${WORK}/first ${WORK}/moved)
    build_consumer(-DMY_CLASSES_FROM=package -DCMAKE_PREFIX_PATH=${WORK}/moved)
    run_consumer(${WORK}/moved/share/my_classes)
    build_with_pkg_config(${WORK}/moved ${WORK}/moved/share/my_classes)
    refuse_component(${WORK}/moved)
    # Nothing stays when it is taken back, but for the directories that are not its own.
    file(WRITE ${WORK}/first/share/my_classes/of_somebody_else "")
    run(${CMAKE_COMMAND} --install ${BUILD} --prefix ${WORK}/first)
    run(${CMAKE_COMMAND} --build ${BUILD} --target uninstall)
    file(GLOB_RECURSE left RELATIVE ${WORK}/first ${WORK}/first/*)
    if(NOT left STREQUAL "share/my_classes/of_somebody_else" OR EXISTS ${WORK}/first/include/my_classes)
        message(FATAL_ERROR "uninstall leaves ${left}")
    endif()
elseif(WAY STREQUAL "static")
    run(${CMAKE_COMMAND} -S ${SOURCE} -B ${WORK}/library ${CONFIGURE} -DBUILD_SHARED_LIBS=OFF
        -DMY_CLASSES_BUILD_TESTS=OFF -DMY_CLASSES_BUILD_BENCHMARKS=OFF -DMY_CLASSES_BUILD_EXAMPLES=OFF
        -DMY_CLASSES_BUILD_PROGRAM=OFF -DMY_CLASSES_BUILD_DOCUMENT_EDITOR=OFF
        -DCMAKE_INSTALL_PREFIX=${WORK}/installed)
    run(${CMAKE_COMMAND} --build ${WORK}/library --parallel 2)
    run(${CMAKE_COMMAND} --install ${WORK}/library)
    build_consumer(-DMY_CLASSES_FROM=package -DCMAKE_PREFIX_PATH=${WORK}/installed)
    run_consumer(${WORK}/installed/share/my_classes)
    build_with_pkg_config(${WORK}/installed ${WORK}/installed/share/my_classes)
    # Started by its name alone, as from a shell, the program still knows where it is.
    file(COPY ${WORK}/installed/share DESTINATION ${WORK}/consumer)
    set(ENV{PATH} "${WORK}/consumer:$ENV{PATH}")
    run(sh -c "cd / && exec consumer ${WORK}/consumer/share/my_classes")
    # Now the icons are nowhere on disk.
    file(REMOVE_RECURSE ${WORK}/installed ${WORK}/library ${WORK}/consumer/share)
    run_consumer(:/my_classes)
elseif(WAY STREQUAL "subdirectory")
    build_consumer(-DMY_CLASSES_FROM=subdirectory -DMY_CLASSES_SOURCE=${SOURCE} -DMY_CLASSES_INSTALL=ON)
    run_consumer(${WORK}/consumer/my_classes/share/my_classes)
    # The host ships the library with its program, and nothing else of it.
    foreach(component IN ITEMS consumer my_classes_Runtime)
        run(${CMAKE_COMMAND} --install ${WORK}/consumer --prefix ${WORK}/shipped --component ${component})
    endforeach()
    file(REMOVE_RECURSE ${WORK}/consumer)
    expect_files(${WORK}/shipped/bin consumer)
    run(${WORK}/shipped/bin/consumer ${WORK}/shipped/share/my_classes)
    if(EXISTS ${WORK}/shipped/include)
        message(FATAL_ERROR "headers are shipped with a program")
    endif()
elseif(WAY STREQUAL "fetchcontent")
    build_consumer(-DMY_CLASSES_FROM=fetchcontent -DMY_CLASSES_SOURCE=${SOURCE} -DBUILD_SHARED_LIBS=OFF)
    run_consumer(${WORK}/consumer/_deps/my_classes-build/share/my_classes)
endif()
