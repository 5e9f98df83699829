# SPDX-FileCopyrightText: 2026 the my_classes authors
# SPDX-License-Identifier: MIT

# The Debian packages: scripts/packages.sh makes and checks them.
set(CPACK_GENERATOR DEB)
set(CPACK_PACKAGE_NAME my-classes)
set(CPACK_PACKAGE_CONTACT "the my_classes authors <my-classes@packages.invalid>")
set(CPACK_PACKAGING_INSTALL_PREFIX /usr)
set(CPACK_STRIP_FILES ON)
set(CPACK_DEB_COMPONENT_INSTALL ON)
set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_PACKAGE_RELEASE 1)
set(CPACK_DEBIAN_PACKAGE_CONTROL_STRICT_PERMISSION ON)
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS_PRIVATE_DIRS ${PROJECT_BINARY_DIR}/lib)
set(CPACK_INSTALL_DEFAULT_DIRECTORY_PERMISSIONS OWNER_READ OWNER_WRITE OWNER_EXECUTE GROUP_READ GROUP_EXECUTE
    WORLD_READ WORLD_EXECUTE)

set(library libmy-classes${PROJECT_VERSION_MAJOR}.${PROJECT_VERSION_MINOR})
set(needs_library "${library} (= ${PROJECT_VERSION}-1)")

set(CPACK_DEBIAN_MY_CLASSES_RUNTIME_PACKAGE_NAME ${library})
set(CPACK_DEBIAN_MY_CLASSES_RUNTIME_PACKAGE_SECTION libs)
file(WRITE ${PROJECT_BINARY_DIR}/debian/shlibs
    "libmy_classes ${PROJECT_VERSION_MAJOR}.${PROJECT_VERSION_MINOR} ${library} (>= ${PROJECT_VERSION})\n")
file(WRITE ${PROJECT_BINARY_DIR}/debian/triggers "activate-noawait ldconfig\n")
set(CPACK_DEBIAN_MY_CLASSES_RUNTIME_PACKAGE_CONTROL_EXTRA
    ${PROJECT_BINARY_DIR}/debian/shlibs ${PROJECT_BINARY_DIR}/debian/triggers)
set(CPACK_DEBIAN_MY_CLASSES_RUNTIME_PACKAGE_RECOMMENDS "hunspell-en-us | hunspell-dictionary")
set(CPACK_COMPONENT_MY_CLASSES_RUNTIME_DESCRIPTION "widgets for a rich-text document editor
Qt 6 widgets from which an application assembles a tabbed rich-text document
editor: an editor with lists, tables, pictures and spell checking, find and
replace, tabs that are renamed in place, and downloads.")

set(CPACK_DEBIAN_MY_CLASSES_DEVELOPMENT_PACKAGE_NAME libmy-classes-dev)
set(CPACK_DEBIAN_MY_CLASSES_DEVELOPMENT_PACKAGE_SECTION libdevel)
set(CPACK_DEBIAN_MY_CLASSES_DEVELOPMENT_PACKAGE_DEPENDS "${needs_library}, qt6-base-dev (>= 6.4)")
set(CPACK_DEBIAN_MY_CLASSES_DEVELOPMENT_PACKAGE_SUGGESTS libmy-classes-designer)
set(CPACK_COMPONENT_MY_CLASSES_DEVELOPMENT_DESCRIPTION "widgets for a rich-text document editor - development files
Headers, CMake package and pkg-config file of the library my_classes.")

set(CPACK_DEBIAN_MY_CLASSES_DESIGNER_PACKAGE_NAME libmy-classes-designer)
set(CPACK_DEBIAN_MY_CLASSES_DESIGNER_PACKAGE_SECTION devel)
set(CPACK_DEBIAN_MY_CLASSES_DESIGNER_PACKAGE_DEPENDS "${needs_library}")
set(CPACK_DEBIAN_MY_CLASSES_DESIGNER_PACKAGE_ENHANCES designer-qt6)
set(CPACK_COMPONENT_MY_CLASSES_DESIGNER_DESCRIPTION "widgets for a rich-text document editor - Qt Designer plug-in
Lets Qt Designer, and programs that read its forms, place the editor, the tab
and the tab widget of the library my_classes.")

set(CPACK_DEBIAN_MY_CLASSES_PROGRAMS_PACKAGE_NAME my-classes)
set(CPACK_DEBIAN_MY_CLASSES_PROGRAMS_PACKAGE_SECTION editors)
set(CPACK_DEBIAN_MY_CLASSES_PROGRAMS_PACKAGE_DEPENDS "${needs_library}")
set(CPACK_COMPONENT_MY_CLASSES_PROGRAMS_DESCRIPTION "document editor with sections and spell checking
An editor for documents of several sections, and the program that shows the
editor of the library my_classes alone.")

set(CPACK_COMPONENTS_ALL my_classes_Runtime my_classes_Development my_classes_Programs)
if(TARGET my_classes_designer)
    list(APPEND CPACK_COMPONENTS_ALL my_classes_Designer)
endif()

# Every package says whose it is and what has changed.
configure_file(changelog.Debian.in ${PROJECT_BINARY_DIR}/debian/changelog.Debian @ONLY)
my_classes_compress(${PROJECT_BINARY_DIR}/debian/changelog.Debian)
foreach(component IN LISTS CPACK_COMPONENTS_ALL)
    string(TOUPPER CPACK_DEBIAN_${component}_PACKAGE_NAME name)
    install(FILES copyright ${PROJECT_BINARY_DIR}/debian/changelog.Debian.gz
        DESTINATION ${CMAKE_INSTALL_DATADIR}/doc/${${name}} COMPONENT ${component})
endforeach()

include(CPack)
