set(torvane_test_headers <gmock/gmock.h> <QDir> <QFile> <QStringList> <QTemporaryDir>)

# What is tested is optimised, not the tests: compiling them is most of a build.
function(torvane_compile_as_test name)
    target_compile_options(${name} PRIVATE $<$<CONFIG:Release>:-O1>)
    if(TORVANE_SANITIZE)
        target_compile_options(${name} PRIVATE -O0)
    endif()
endfunction()

# Registers the tests of one program with CTest, one CTest entry a test.
#   CORE: links torvane_core alone, runs without a display.
#   PROGRAMS: runs built programs, which CI tries as users get them too; `ctest -L programs` runs these alone.
#   WINDOWS: links torvane_editor, runs on the offscreen platform; SCALE n makes its screen n times as dense.
#   TIMEOUT n: seconds that a test may take, 120 where nothing is said.
# Headers that most tests need are compiled once, by the windows' tests once a program: the toolkit tells its tests where they
# lie. Not so under a compiler cache, which saves more.
function(torvane_add_tests name)
    cmake_parse_arguments(arg "CORE;PROGRAMS;WINDOWS" "SCALE;TIMEOUT" "SOURCES" ${ARGN})
    add_executable(${name} ${arg_SOURCES})
    target_link_libraries(${name} PRIVATE GTest::gmock torvane_warnings)
    target_include_directories(${name} PRIVATE ${CMAKE_SOURCE_DIR}/tests)
    torvane_compile_as_test(${name})
    if(NOT CMAKE_CXX_COMPILER_LAUNCHER AND arg_WINDOWS)
        target_precompile_headers(${name} PRIVATE ${torvane_test_headers} <QPushButton> <QTest>)
    elseif(NOT CMAKE_CXX_COMPILER_LAUNCHER)
        target_precompile_headers(${name} REUSE_FROM torvane_test_support)
    endif()
    set(scale "")
    set(prefix "")
    if(arg_WINDOWS)
        target_link_libraries(${name} PRIVATE torvane_window_test_support torvane_editor Qt6::Test)
    else()
        target_link_libraries(${name} PRIVATE torvane_test_support torvane_core)
    endif()
    if(arg_SCALE)
        # A property of its own: the discovery takes a list of variables apart.
        set(scale ENVIRONMENT_MODIFICATION QT_SCALE_FACTOR=set:${arg_SCALE})
        set(prefix "Scale${arg_SCALE}.")
    endif()
    set(labels "")
    if(arg_PROGRAMS)
        set(labels LABELS programs)
        set_property(GLOBAL APPEND PROPERTY torvane_program_tests ${name})
    elseif(arg_CORE)
        set_property(GLOBAL APPEND PROPERTY torvane_core_tests ${name})
    endif()
    if(NOT arg_TIMEOUT)
        set(arg_TIMEOUT 120)
    endif()
    torvane_register_tests(${name} "${prefix}" "*"
        PROPERTIES TIMEOUT ${arg_TIMEOUT} ENVIRONMENT QT_QPA_PLATFORM=offscreen ${scale} ${labels})
endfunction()

# Makes the tests of a program that a filter takes known to CTest: each by its name, or with TORVANE_TESTS_WHOLE the whole
# program in a few shares that can run beside each other, which saves thousands of starts.
function(torvane_register_tests name prefix filter)
    cmake_parse_arguments(arg "" "" "PROPERTIES" ${ARGN})
    if(NOT TORVANE_TESTS_WHOLE)
        gtest_discover_tests(${name}
            TEST_PREFIX "${prefix}"
            TEST_FILTER "${filter}"
            TEST_LIST "${prefix}${name}"
            DISCOVERY_MODE PRE_TEST
            DISCOVERY_TIMEOUT 60
            PROPERTIES ${arg_PROPERTIES})
        return()
    endif()
    set(shares 4)
    foreach(share RANGE 1 ${shares})
        math(EXPR index "${share} - 1")
        set(test "${prefix}${name}.${share}")
        add_test(NAME ${test} COMMAND ${CMAKE_COMMAND} -E env
            GTEST_TOTAL_SHARDS=${shares} GTEST_SHARD_INDEX=${index}
            $<TARGET_FILE:${name}> --gtest_brief=1 "--gtest_filter=${filter}")
        set_tests_properties(${test} PROPERTIES ${arg_PROPERTIES} TIMEOUT 1200)
    endforeach()
endfunction()
