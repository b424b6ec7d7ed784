# Installs a build, moves the installed tree, and builds and runs a program against it with CMake and with pkg-config.
# Needs BUILD_DIR, WORK_DIR, SOURCE_DIR, GENERATOR, COMPILER and VERSION.

function(run)
    execute_process(COMMAND ${ARGN} COMMAND_ERROR_IS_FATAL ANY)
endfunction()

function(expect_version program how)
    execute_process(COMMAND "${program}" OUTPUT_VARIABLE said COMMAND_ERROR_IS_FATAL ANY)
    if(NOT said MATCHES "^velcoredata ${VERSION}\n")
        message(FATAL_ERROR "the program built with ${how} said: ${said}")
    endif()
    message(STATUS "built with ${how}: ${said}")
endfunction()

file(REMOVE_RECURSE "${WORK_DIR}")
run("${CMAKE_COMMAND}" --install "${BUILD_DIR}" --prefix "${WORK_DIR}/installed")
file(RENAME "${WORK_DIR}/installed" "${WORK_DIR}/moved")
set(prefix "${WORK_DIR}/moved")

run("${CMAKE_COMMAND}" -S "${SOURCE_DIR}" -B "${WORK_DIR}/cmake" -G "${GENERATOR}"
    "-DCMAKE_CXX_COMPILER=${COMPILER}" "-DCMAKE_PREFIX_PATH=${prefix}")
run("${CMAKE_COMMAND}" --build "${WORK_DIR}/cmake")
expect_version("${WORK_DIR}/cmake/consumer" CMake)

file(GLOB_RECURSE pc "${prefix}/*/velcoredata.pc")
get_filename_component(pc_dir "${pc}" DIRECTORY)
set(ENV{PKG_CONFIG_PATH} "${pc_dir}")
execute_process(COMMAND pkg-config --cflags --libs velcoredata
    OUTPUT_VARIABLE flags OUTPUT_STRIP_TRAILING_WHITESPACE COMMAND_ERROR_IS_FATAL ANY)
execute_process(COMMAND pkg-config --variable=libdir velcoredata
    OUTPUT_VARIABLE libdir OUTPUT_STRIP_TRAILING_WHITESPACE COMMAND_ERROR_IS_FATAL ANY)
separate_arguments(flags UNIX_COMMAND "${flags}")
run("${COMPILER}" -std=c++20 -fPIC "${SOURCE_DIR}/consumer.cpp" -o "${WORK_DIR}/consumer-pkg-config"
    ${flags} "-Wl,-rpath,${libdir}")
expect_version("${WORK_DIR}/consumer-pkg-config" pkg-config)
