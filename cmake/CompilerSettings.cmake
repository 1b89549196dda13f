# One place for what every target of ours is compiled with.
set(CMAKE_CXX_STANDARD 20)
set(CMAKE_CXX_STANDARD_REQUIRED ON)
set(CMAKE_CXX_EXTENSIONS OFF)
set(CMAKE_RUNTIME_OUTPUT_DIRECTORY ${CMAKE_BINARY_DIR})

option(QUACKDASH_WERROR "Treat warnings as errors (the test command switches this on)" OFF)
option(QUACKDASH_SANITIZE "Build with AddressSanitizer and UndefinedBehaviorSanitizer" OFF)
option(QUACKDASH_FUZZ "Build the fuzzers (clang++, with QUACKDASH_SANITIZE)" OFF)

find_program(CCACHE_PROGRAM ccache)
if(CCACHE_PROGRAM AND NOT CMAKE_CXX_COMPILER_LAUNCHER)
    set(CMAKE_CXX_COMPILER_LAUNCHER ${CCACHE_PROGRAM})
endif()

# Linked by every library, program, test and benchmark of ours; third-party code never sees it.
add_library(quackdash_settings INTERFACE)
target_include_directories(quackdash_settings INTERFACE ${CMAKE_SOURCE_DIR}/src)
target_compile_options(quackdash_settings INTERFACE -Wall -Wextra -Wpedantic -Wshadow -Wconversion
    $<$<BOOL:${QUACKDASH_WERROR}>:-Werror>
    # g++ 12 sees an overlapping copy in every inlined ("literal" + std::string).
    $<$<AND:$<CXX_COMPILER_ID:GNU>,$<VERSION_LESS:$<CXX_COMPILER_VERSION>,13>>:-Wno-restrict>)
# GLM: silence its own deprecation guard for the extensions in use. GLFW: GL comes from GLEW alone.
target_compile_definitions(quackdash_settings INTERFACE GLM_ENABLE_EXPERIMENTAL GLFW_INCLUDE_NONE)
if(QUACKDASH_SANITIZE)
    target_compile_options(quackdash_settings INTERFACE
        -fsanitize=address,undefined -fno-omit-frame-pointer -fno-sanitize=vptr
        $<$<CXX_COMPILER_ID:GNU>:-Wno-maybe-uninitialized>) # sees what isn't there in <regex>
    target_link_options(quackdash_settings INTERFACE -fsanitize=address,undefined)
endif()
if(QUACKDASH_FUZZ)
    target_compile_options(quackdash_settings INTERFACE -fsanitize=fuzzer-no-link)
endif()
