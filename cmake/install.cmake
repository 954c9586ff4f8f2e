# Installation, so that find_package(ZendaraView CONFIG) works. Core and headless container are components of their
# own: whoever asks for the core alone needs no library besides.
option(ZENDARA_INSTALL "Make install rules" ${PROJECT_IS_TOP_LEVEL})
if(NOT ZENDARA_INSTALL)
    return()
endif()
set(zendara_package_dir ${CMAKE_INSTALL_LIBDIR}/cmake/ZendaraView)

install(TARGETS zendara_core EXPORT ZendaraViewCoreTargets ARCHIVE DESTINATION ${CMAKE_INSTALL_LIBDIR} COMPONENT core)
install(EXPORT ZendaraViewCoreTargets NAMESPACE zendara:: DESTINATION ${zendara_package_dir} COMPONENT core)
foreach(folder support render panel form print dialogs controls)
    # The headers of the interpolation's kernels are for the sources beside them alone.
    install(DIRECTORY src/${folder} DESTINATION ${CMAKE_INSTALL_INCLUDEDIR}/zendara COMPONENT core
            FILES_MATCHING PATTERN "*.hpp" PATTERN "*.ipp"
            PATTERN "bucket_search.hpp" EXCLUDE PATTERN "row_kernels.hpp" EXCLUDE
            PATTERN "interpolation_lanes.ipp" EXCLUDE)
endforeach()

if(TARGET zendara_headless)
    install(TARGETS zendara_files zendara_headless EXPORT ZendaraViewHeadlessTargets
            ARCHIVE DESTINATION ${CMAKE_INSTALL_LIBDIR} COMPONENT headless)
    install(EXPORT ZendaraViewHeadlessTargets NAMESPACE zendara:: DESTINATION ${zendara_package_dir}
            COMPONENT headless)
    install(DIRECTORY src/files src/platform DESTINATION ${CMAKE_INSTALL_INCLUDEDIR}/zendara
            COMPONENT headless FILES_MATCHING PATTERN "*.hpp")
    # How to find a library that comes without a package file of its own.
    install(DIRECTORY cmake/ DESTINATION ${zendara_package_dir} COMPONENT headless
            FILES_MATCHING PATTERN "Find*.cmake")
endif()
if(TARGET zendara)
    install(TARGETS zendara RUNTIME DESTINATION ${CMAKE_INSTALL_BINDIR} COMPONENT program)
endif()

configure_package_config_file(cmake/ZendaraViewConfig.cmake.in ${PROJECT_BINARY_DIR}/ZendaraViewConfig.cmake
    INSTALL_DESTINATION ${zendara_package_dir})
write_basic_package_version_file(${PROJECT_BINARY_DIR}/ZendaraViewConfigVersion.cmake COMPATIBILITY SameMinorVersion)
install(FILES ${PROJECT_BINARY_DIR}/ZendaraViewConfig.cmake ${PROJECT_BINARY_DIR}/ZendaraViewConfigVersion.cmake
        DESTINATION ${zendara_package_dir} COMPONENT core)
