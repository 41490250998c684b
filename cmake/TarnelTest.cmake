# tarnel_test(NAME SOURCES a.cpp b.cpp LIBS lib1 lib2 [LABELS l]): one GoogleTest binary, one CTest entry.
function(tarnel_test name)
    cmake_parse_arguments(T "" "" "SOURCES;LIBS;LABELS" ${ARGN})
    add_executable(${name} ${T_SOURCES})
    target_link_libraries(${name} PRIVATE ${T_LIBS} GTest::gtest GTest::gtest_main tarnel_common)
    add_test(NAME ${name} COMMAND ${name})
    set_tests_properties(${name} PROPERTIES
        ENVIRONMENT "TARNEL_SOURCE_DIR=${CMAKE_SOURCE_DIR};TARNEL_PYTHON=/usr/bin/python3")
    if(T_LABELS)
        set_tests_properties(${name} PROPERTIES LABELS "${T_LABELS}")
    endif()
endfunction()
