# SPDX-FileCopyrightText: 2026 the my_classes authors
# SPDX-License-Identifier: MIT

# my_classes_consumer_test(WAY) builds and runs a host that gets the library that way: see build_and_run.cmake.
function(my_classes_consumer_test way)
    set(configure
        -G ${CMAKE_GENERATOR}
        -DCMAKE_CXX_COMPILER=${CMAKE_CXX_COMPILER}
        -DCMAKE_CXX_COMPILER_LAUNCHER=${CMAKE_CXX_COMPILER_LAUNCHER}
        -DCMAKE_BUILD_TYPE=Debug
        -DCMAKE_CXX_FLAGS_DEBUG=-O0
        -DCMAKE_UNITY_BUILD=ON) # the library is built four times here
    add_test(NAME consumer_${way} COMMAND ${CMAKE_COMMAND}
        -DWAY=${way} -DSOURCE=${PROJECT_SOURCE_DIR} -DBUILD=${PROJECT_BINARY_DIR}
        -DCOMPILER=${CMAKE_CXX_COMPILER}
        -DWORK=${CMAKE_CURRENT_BINARY_DIR}/consumer/${way}
        "-DCONFIGURE=${configure}"
        -P ${CMAKE_CURRENT_SOURCE_DIR}/consumer/build_and_run.cmake)
    set_tests_properties(consumer_${way} PROPERTIES
        TIMEOUT 900
        PROCESSORS 2
        ENVIRONMENT "QT_QPA_PLATFORM=offscreen")
endfunction()

if(BUILD_SHARED_LIBS)
    my_classes_consumer_test(shared)
    if(MY_CLASSES_BUILD_PROGRAM)
        # The program of that moved installation opens its window too.
        set_tests_properties(consumer_shared PROPERTIES FIXTURES_SETUP moved_installation)
        set(moved_program ${CMAKE_CURRENT_BINARY_DIR}/consumer/shared/moved/${CMAKE_INSTALL_BINDIR}/my_classes)
        add_test(NAME program_installed COMMAND tst_program)
        set_tests_properties(program_installed PROPERTIES
            TIMEOUT 300
            FIXTURES_REQUIRED moved_installation
            ENVIRONMENT "QT_QPA_PLATFORM=offscreen;MY_CLASSES_PROGRAM=${moved_program}")
    endif()
endif()
my_classes_consumer_test(static)
my_classes_consumer_test(subdirectory)
my_classes_consumer_test(fetchcontent)
