# SPDX-FileCopyrightText: 2026 the my_classes authors
# SPDX-License-Identifier: MIT

# What is installed comes in components: my_classes_Runtime, my_classes_Development, my_classes_Programs and
# my_classes_Designer. A host that ships the library with its program needs the first only.
include(CMakePackageConfigHelpers)

set(package_dir ${CMAKE_INSTALL_LIBDIR}/cmake/my_classes)

install(TARGETS my_classes EXPORT my_classesTargets
    LIBRARY COMPONENT my_classes_Runtime NAMELINK_COMPONENT my_classes_Development
    RUNTIME COMPONENT my_classes_Runtime
    ARCHIVE COMPONENT my_classes_Development)
set_target_properties(my_classes PROPERTIES INSTALL_RPATH_USE_LINK_PATH ON) # a Qt of one's own

install(EXPORT my_classesTargets NAMESPACE my_classes:: DESTINATION ${package_dir} COMPONENT my_classes_Development)
configure_package_config_file(
    ${CMAKE_CURRENT_LIST_DIR}/my_classesConfig.cmake.in ${PROJECT_BINARY_DIR}/my_classesConfig.cmake
    INSTALL_DESTINATION ${package_dir} NO_SET_AND_CHECK_MACRO NO_CHECK_REQUIRED_COMPONENTS_MACRO)
write_basic_package_version_file(${PROJECT_BINARY_DIR}/my_classesConfigVersion.cmake COMPATIBILITY SameMinorVersion)
install(FILES ${PROJECT_BINARY_DIR}/my_classesConfig.cmake ${PROJECT_BINARY_DIR}/my_classesConfigVersion.cmake
    DESTINATION ${package_dir} COMPONENT my_classes_Development)

# For builds without CMake. The paths in it are relative to it.
file(RELATIVE_PATH prefix_from_pc ${CMAKE_INSTALL_FULL_LIBDIR}/pkgconfig ${CMAKE_INSTALL_PREFIX})
file(RELATIVE_PATH libdir_from_prefix ${CMAKE_INSTALL_PREFIX} ${CMAKE_INSTALL_FULL_LIBDIR})
file(RELATIVE_PATH includedir_from_prefix ${CMAKE_INSTALL_PREFIX} ${CMAKE_INSTALL_FULL_INCLUDEDIR})
if(BUILD_SHARED_LIBS)
    set(pc_requires "Qt6Widgets >= 6.4, Qt6Network >= 6.4")
    set(pc_cflags "")
    set(pc_libs "")
else()
    set(pc_requires "Qt6Widgets >= 6.4, Qt6Network >= 6.4, Qt6PrintSupport >= 6.4, enchant-2")
    set(pc_cflags " -DMY_CLASSES_STATIC_DEFINE")
    list(JOIN CMAKE_DL_LIBS " -l" pc_libs)
    if(pc_libs)
        string(PREPEND pc_libs " -l")
    endif()
endif()
configure_file(${CMAKE_CURRENT_LIST_DIR}/my_classes.pc.in ${PROJECT_BINARY_DIR}/my_classes.pc @ONLY)
install(FILES ${PROJECT_BINARY_DIR}/my_classes.pc DESTINATION ${CMAKE_INSTALL_LIBDIR}/pkgconfig
    COMPONENT my_classes_Development)

# The licence asks to go with every copy.
install(FILES LICENSE DESTINATION ${CMAKE_INSTALL_DATADIR}/my_classes COMPONENT my_classes_Runtime)

if(PROJECT_IS_TOP_LEVEL)
    add_custom_target(uninstall
        COMMAND ${CMAKE_COMMAND} -DBUILD=${PROJECT_BINARY_DIR} -P ${CMAKE_CURRENT_LIST_DIR}/uninstall.cmake
        COMMENT "Removing what was installed from here" VERBATIM)
endif()
