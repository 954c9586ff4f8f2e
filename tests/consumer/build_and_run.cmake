# Builds the consumer and runs it; any step that fails ends the script with a failure.
# WAY is "installed" (from a fresh prefix) or "subproject" (from the source tree).
function(run)
    execute_process(COMMAND ${ARGV} COMMAND_ERROR_IS_FATAL ANY)
endfunction()

# An old prefix or cache could hide a header that is no longer installed.
set(prefix ${FOLDER}/prefix)
unset(ENV{DESTDIR})
file(REMOVE_RECURSE ${prefix} ${FOLDER}/build/CMakeCache.txt)

set(settings
    -D CMAKE_CXX_COMPILER=${COMPILER}
    -D CMAKE_CXX_COMPILER_LAUNCHER=${LAUNCHER}
    -D CMAKE_BUILD_TYPE=${BUILD_TYPE})
if(WAY STREQUAL "installed")
    run(${CMAKE_COMMAND} --install ${LIBRARY_BUILD} --component core --prefix ${prefix})
    list(APPEND settings -D CMAKE_PREFIX_PATH=${prefix} -D CMAKE_FIND_USE_PACKAGE_REGISTRY=OFF)
else()
    # The library as the outer build has it, so that a compiler cache answers.
    list(APPEND settings -D ZENDARA_SOURCE=${LIBRARY_SOURCE} -D ZENDARA_SANITIZE=${SANITIZE}
                         -D ZENDARA_COVERAGE=${COVERAGE} -D ZENDARA_WARNINGS_AS_ERRORS=ON)
endif()

run(${CMAKE_COMMAND} -S ${PROJECT} -B ${FOLDER}/build -G ${GENERATOR} ${settings})
run(${CMAKE_COMMAND} --build ${FOLDER}/build --target consumer)
run(${FOLDER}/build/consumer)
