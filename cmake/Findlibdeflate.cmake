# Finds libdeflate where its own package file is not installed beside it: libdeflate::libdeflate.
find_package(libdeflate CONFIG QUIET)
if(TARGET libdeflate::libdeflate_shared AND NOT TARGET libdeflate::libdeflate)
    add_library(libdeflate::libdeflate INTERFACE IMPORTED)
    target_link_libraries(libdeflate::libdeflate INTERFACE libdeflate::libdeflate_shared)
elseif(TARGET libdeflate::libdeflate_static AND NOT TARGET libdeflate::libdeflate)
    add_library(libdeflate::libdeflate INTERFACE IMPORTED)
    target_link_libraries(libdeflate::libdeflate INTERFACE libdeflate::libdeflate_static)
endif()

if(TARGET libdeflate::libdeflate)
    set(libdeflate_FOUND TRUE)
else()
    find_path(libdeflate_INCLUDE_DIR libdeflate.h)
    find_library(libdeflate_LIBRARY deflate)
    mark_as_advanced(libdeflate_INCLUDE_DIR libdeflate_LIBRARY)

    include(FindPackageHandleStandardArgs)
    find_package_handle_standard_args(libdeflate REQUIRED_VARS libdeflate_LIBRARY libdeflate_INCLUDE_DIR)
    if(libdeflate_FOUND)
        add_library(libdeflate::libdeflate UNKNOWN IMPORTED)
        set_target_properties(libdeflate::libdeflate PROPERTIES
            IMPORTED_LOCATION "${libdeflate_LIBRARY}"
            INTERFACE_INCLUDE_DIRECTORIES "${libdeflate_INCLUDE_DIR}")
    endif()
endif()
