# What tests of several folders share: scratch folders with data files, captured output (no window), and a GL context (window needed).
add_library(quackdash_testsupport
    ${CMAKE_CURRENT_LIST_DIR}/DataCapturedLog.cpp
    ${CMAKE_CURRENT_LIST_DIR}/DataScratch.cpp)
target_compile_definitions(quackdash_testsupport PRIVATE QUACKDASH_SOURCE_DATA="${CMAKE_SOURCE_DIR}/data")
target_include_directories(quackdash_testsupport PUBLIC ${CMAKE_SOURCE_DIR}/tests)
target_link_libraries(quackdash_testsupport PUBLIC quackdash_settings GTest::gtest_main)

add_library(quackdash_testsupport_gl
    ${CMAKE_CURRENT_LIST_DIR}/GlErrors.cpp
    ${CMAKE_CURRENT_LIST_DIR}/GlFixture.cpp)
target_link_libraries(quackdash_testsupport_gl PUBLIC quackdash_testsupport quackdash_gpu quackdash_platform)

find_program(XVFB_RUN xvfb-run)

# Registers an executable of tests that need a GL context, under label `gl`; on a virtual display of its own where there is one to be had.
function(quackdash_add_gl_test target)
    set(display)
    if(XVFB_RUN)
        set(display ${XVFB_RUN} -a -s "-screen 0 1280x1024x24")
    endif()
    add_test(NAME gl.${target} COMMAND ${display} $<TARGET_FILE:${target}>)
    set_tests_properties(gl.${target} PROPERTIES LABELS gl)
endfunction()
