# SPDX-FileCopyrightText: 2026 the my_classes authors
# SPDX-License-Identifier: MIT

# Removes what the last installation from the directory BUILD put in place (below DESTDIR, where that is set), and the
# library's own directories once they are empty.
cmake_minimum_required(VERSION 3.22)

file(GLOB manifests ${BUILD}/install_manifest*.txt)
if(NOT manifests)
    message(FATAL_ERROR "Nothing was installed from ${BUILD}.")
endif()

set(directories "")
foreach(manifest IN LISTS manifests)
    file(STRINGS ${manifest} files)
    foreach(file IN LISTS files)
        message(STATUS "Removing $ENV{DESTDIR}${file}")
        file(REMOVE "$ENV{DESTDIR}${file}")
        while(file MATCHES "my_classes/")
            get_filename_component(file ${file} DIRECTORY)
            list(APPEND directories "$ENV{DESTDIR}${file}")
        endwhile()
    endforeach()
    file(REMOVE ${manifest})
endforeach()

list(REMOVE_DUPLICATES directories)
list(SORT directories ORDER DESCENDING) # the inner ones first
foreach(directory IN LISTS directories)
    file(GLOB entries "${directory}/*")
    if(NOT entries AND directory MATCHES "/my_classes(/|$)" AND IS_DIRECTORY ${directory})
        file(REMOVE_RECURSE ${directory})
    endif()
endforeach()
