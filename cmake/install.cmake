# SPDX-FileCopyrightText: 2026 the my_classes authors
# SPDX-License-Identifier: MIT

include(CMakePackageConfigHelpers)

set(package_dir ${CMAKE_INSTALL_LIBDIR}/cmake/my_classes)

install(TARGETS my_classes EXPORT my_classesTargets)
install(TARGETS my_classes_program)

# Relative, so that the program finds its library after the installation was moved.
file(RELATIVE_PATH library_from_program ${CMAKE_INSTALL_FULL_BINDIR} ${CMAKE_INSTALL_FULL_LIBDIR})
set_target_properties(my_classes_program PROPERTIES INSTALL_RPATH $ORIGIN/${library_from_program})
set_target_properties(my_classes my_classes_program PROPERTIES INSTALL_RPATH_USE_LINK_PATH ON) # a Qt of one's own

install(EXPORT my_classesTargets NAMESPACE my_classes:: DESTINATION ${package_dir})
configure_package_config_file(
    ${CMAKE_CURRENT_LIST_DIR}/my_classesConfig.cmake.in ${PROJECT_BINARY_DIR}/my_classesConfig.cmake
    INSTALL_DESTINATION ${package_dir} NO_SET_AND_CHECK_MACRO NO_CHECK_REQUIRED_COMPONENTS_MACRO)
write_basic_package_version_file(${PROJECT_BINARY_DIR}/my_classesConfigVersion.cmake COMPATIBILITY SameMinorVersion)
install(FILES ${PROJECT_BINARY_DIR}/my_classesConfig.cmake ${PROJECT_BINARY_DIR}/my_classesConfigVersion.cmake
    DESTINATION ${package_dir})
