# SPDX-FileCopyrightText: 2026 the my_classes authors
# SPDX-License-Identifier: MIT

# my_classes_install_program(TARGET) installs a program that uses the shared library, if anything is installed.
function(my_classes_install_program target)
    if(NOT MY_CLASSES_INSTALL)
        return()
    endif()
    install(TARGETS ${target} RUNTIME COMPONENT my_classes_Programs)
    # Relative, so that the program finds its library after the installation was moved.
    file(RELATIVE_PATH library_from_program ${CMAKE_INSTALL_FULL_BINDIR} ${CMAKE_INSTALL_FULL_LIBDIR})
    set_target_properties(${target} PROPERTIES
        INSTALL_RPATH $ORIGIN/${library_from_program}
        INSTALL_RPATH_USE_LINK_PATH ON) # a Qt of one's own
endfunction()
