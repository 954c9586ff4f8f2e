# Finds Cairo, which has no package file of its own for CMake: Cairo::Cairo, with its FreeType, PDF and SVG parts.
find_package(PkgConfig QUIET)
if(PKG_CONFIG_FOUND)
    pkg_check_modules(PC_Cairo QUIET cairo-ft cairo-pdf cairo-svg)
endif()

find_path(Cairo_INCLUDE_DIR cairo-ft.h HINTS ${PC_Cairo_INCLUDE_DIRS} PATH_SUFFIXES cairo)
find_library(Cairo_LIBRARY cairo HINTS ${PC_Cairo_LIBRARY_DIRS})
mark_as_advanced(Cairo_INCLUDE_DIR Cairo_LIBRARY)

include(FindPackageHandleStandardArgs)
find_package_handle_standard_args(Cairo REQUIRED_VARS Cairo_LIBRARY Cairo_INCLUDE_DIR
                                  VERSION_VAR PC_Cairo_cairo-pdf_VERSION)
if(Cairo_FOUND AND NOT TARGET Cairo::Cairo)
    add_library(Cairo::Cairo UNKNOWN IMPORTED)
    set_target_properties(Cairo::Cairo PROPERTIES
        IMPORTED_LOCATION "${Cairo_LIBRARY}"
        INTERFACE_INCLUDE_DIRECTORIES "${Cairo_INCLUDE_DIR}")
endif()
