# What every target of the project is compiled with.
function(zendara_compile_options target)
    target_compile_features(${target} PUBLIC cxx_std_20)
    set_target_properties(${target} PROPERTIES CXX_EXTENSIONS OFF)
    # No fused multiply-add: numbers have to come out the same on every machine.
    target_compile_options(${target} PRIVATE -ffp-contract=off -Wall -Wextra -Wpedantic -Wconversion)
    if(CMAKE_CXX_COMPILER_ID STREQUAL "GNU" AND CMAKE_CXX_COMPILER_VERSION VERSION_LESS 13)
        # GCC 12 warns of overlapping copies inside its own std::string when it optimises (its bug 105651).
        target_compile_options(${target} PRIVATE -Wno-restrict)
    endif()
    if(ZENDARA_WARNINGS_AS_ERRORS)
        target_compile_options(${target} PRIVATE -Werror)
    endif()
    if(ZENDARA_SANITIZE)
        target_compile_options(${target} PRIVATE -fsanitize=${ZENDARA_SANITIZE} -fno-sanitize-recover=all
                                                 -fno-omit-frame-pointer)
        target_link_options(${target} PUBLIC -fsanitize=${ZENDARA_SANITIZE})
    endif()
    if(ZENDARA_COVERAGE)
        target_compile_options(${target} PRIVATE --coverage)
        target_link_options(${target} PUBLIC --coverage)
    endif()
endfunction()
