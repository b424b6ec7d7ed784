# Functions that give every target of one kind the same shape.

# velcoredata_library(<target> <include folder>): a shared library of this project, installed with its headers and
# exported under the namespace velcoredata::, that finds its neighbours beside itself.
function(velcoredata_library target include_dir)
    add_library(${target} SHARED)
    target_sources(${target} PUBLIC FILE_SET HEADERS BASE_DIRS "${include_dir}")
    add_library(velcoredata::${target} ALIAS ${target})
    set_target_properties(${target} PROPERTIES
        LINKER_LANGUAGE CXX
        VERSION "${PROJECT_VERSION}"
        SOVERSION "${PROJECT_VERSION_MAJOR}"
        INSTALL_RPATH "$ORIGIN")
    target_compile_features(${target} PUBLIC cxx_std_20)
    # At the end of the whole configuration: install() skips a file set that does not exist yet when it is called.
    cmake_language(EVAL CODE "
        cmake_language(DEFER DIRECTORY [[${PROJECT_SOURCE_DIR}]] CALL install TARGETS ${target}
            EXPORT velcoredata-targets
            LIBRARY DESTINATION [[${CMAKE_INSTALL_LIBDIR}]]
            FILE_SET HEADERS DESTINATION [[${CMAKE_INSTALL_INCLUDEDIR}]])")
endfunction()

# Environment of every test: one locale and one zone, and what the sanitizers need to know.
function(velcoredata_test_environment out)
    set(environment LANG=C.UTF-8 LC_ALL=C.UTF-8 TZ=UTC)
    if("address" IN_LIST VELCOREDATA_SANITIZE)
        list(APPEND environment
            "ASAN_OPTIONS=detect_leaks=1:detect_stack_use_after_return=1:strict_string_checks=1"
            "UBSAN_OPTIONS=print_stacktrace=1:halt_on_error=1")
    endif()
    if("thread" IN_LIST VELCOREDATA_SANITIZE)
        list(APPEND environment
            "TSAN_OPTIONS=halt_on_error=1:second_deadlock_stack=1:suppressions=${PROJECT_SOURCE_DIR}/tests/support/tsan.supp")
    endif()
    set(${out} "${environment}" PARENT_SCOPE)
endfunction()

# velcoredata_add_room_tests(<name> LIBS <library>...): the test program <name> of one room or layer and its
# CTest entry with the label `unit`. Sources are added by target_sources, one file a line.
function(velcoredata_add_room_tests name)
    cmake_parse_arguments(PARSE_ARGV 1 arg "" "" "LIBS")
    add_executable(${name} "${PROJECT_SOURCE_DIR}/tests/support/TestMain.cpp")
    target_include_directories(${name} PRIVATE "${PROJECT_SOURCE_DIR}")
    target_link_libraries(${name} PRIVATE ${arg_LIBS} GTest::gmock GTest::gtest)
    add_test(NAME ${name} COMMAND ${name})
    velcoredata_test_environment(environment)
    set_tests_properties(${name} PROPERTIES
        LABELS unit
        TIMEOUT 600
        ENVIRONMENT "${environment}"
        WORKING_DIRECTORY "${PROJECT_SOURCE_DIR}")
endfunction()
