# SPDX-FileCopyrightText: 2026 the my_classes authors
# SPDX-License-Identifier: MIT

# Compiles through ccache where there is one, unless the person chose a launcher.
find_program(MY_CLASSES_CCACHE ccache)
mark_as_advanced(MY_CLASSES_CCACHE)
if(MY_CLASSES_CCACHE AND NOT DEFINED CMAKE_CXX_COMPILER_LAUNCHER)
    set(CMAKE_CXX_COMPILER_LAUNCHER ${MY_CLASSES_CCACHE})
endif()
