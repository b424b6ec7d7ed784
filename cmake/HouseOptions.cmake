# Language level, warnings and code generation of every target in this tree.

set(CMAKE_CXX_STANDARD 20)
set(CMAKE_CXX_STANDARD_REQUIRED ON)
set(CMAKE_CXX_EXTENSIONS OFF)
set(CMAKE_POSITION_INDEPENDENT_CODE ON)
set(CMAKE_CXX_VISIBILITY_PRESET hidden)
set(CMAKE_VISIBILITY_INLINES_HIDDEN ON)
set(CMAKE_EXPORT_COMPILE_COMMANDS ON)

if(NOT CMAKE_BUILD_TYPE)
    set(CMAKE_BUILD_TYPE Release CACHE STRING "Build type" FORCE)
endif()

# Contraction to fused multiply-add changes the last bit of real arithmetic, which callers may rely on.
add_compile_options(-Wall -Wextra -Wconversion -ffp-contract=off -fno-semantic-interposition)
if(CMAKE_CXX_COMPILER_ID STREQUAL "Clang")
    # clang counts sign conversions under -Wconversion, g++ does not.
    add_compile_options(-Wno-sign-conversion)
endif()

# __FILE__ is the path inside the repository, whether the compiler was given the absolute or the relative path.
file(RELATIVE_PATH velcoredata_source_from_build "${CMAKE_BINARY_DIR}" "${CMAKE_SOURCE_DIR}")
add_compile_options(
    "-fmacro-prefix-map=${CMAKE_SOURCE_DIR}/="
    "-fmacro-prefix-map=${velcoredata_source_from_build}=")

# `signals`, `slots`, `foreach` and `emit` stay ordinary names.
add_compile_definitions(QT_NO_KEYWORDS)

# Comma-free list of sanitizers, e.g. "address;undefined". Empty: none.
set(VELCOREDATA_SANITIZE "" CACHE STRING "Sanitizers of every target")
if(VELCOREDATA_SANITIZE)
    list(JOIN VELCOREDATA_SANITIZE "," velcoredata_sanitizers)
    add_compile_options("-fsanitize=${velcoredata_sanitizers}" -fno-sanitize-recover=all -fno-omit-frame-pointer)
    string(REPLACE "fuzzer-no-link," "" velcoredata_link_sanitizers "${velcoredata_sanitizers}")
    add_link_options("-fsanitize=${velcoredata_link_sanitizers}")
endif()

option(VELCOREDATA_COVERAGE "Instrument for gcov" OFF)
if(VELCOREDATA_COVERAGE)
    add_compile_options(--coverage -fprofile-update=atomic)
    add_link_options(--coverage)
endif()

find_program(VELCOREDATA_CCACHE ccache)
if(VELCOREDATA_CCACHE AND NOT CMAKE_CXX_COMPILER_LAUNCHER)
    set(CMAKE_CXX_COMPILER_LAUNCHER "${VELCOREDATA_CCACHE}")
endif()
