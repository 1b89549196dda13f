# The physics SDK: the registry crate physx-sys carries PhysX 4.1 and compiles it. cargo builds it once, whatever the
# number of presets: they share one target folder. The SDK's own headers stay where cargo unpacked the crate.
set(QUACKDASH_PHYSX_TARGET_DIR ${CMAKE_SOURCE_DIR}/build/physx
    CACHE PATH "Where cargo builds the physics SDK; shared by all presets")
set(PHYSX_CRATE_DIR ${CMAKE_SOURCE_DIR}/third_party/physx)
set(PHYSX_ARCHIVE ${QUACKDASH_PHYSX_TARGET_DIR}/release/libquackdash_physx.a)

find_program(CARGO_PROGRAM cargo REQUIRED)
set(PHYSX_CARGO_ENV CARGO_TARGET_DIR=${QUACKDASH_PHYSX_TARGET_DIR} CC=gcc CXX=g++)

if(NOT PHYSX_CRATE_MANIFEST OR NOT EXISTS ${PHYSX_CRATE_MANIFEST})
    message(STATUS "Fetching the physics SDK's crate")
    execute_process(
        COMMAND ${CMAKE_COMMAND} -E env ${PHYSX_CARGO_ENV} ${CARGO_PROGRAM} metadata --format-version 1 --locked
        WORKING_DIRECTORY ${PHYSX_CRATE_DIR} OUTPUT_VARIABLE physx_metadata RESULT_VARIABLE physx_result)
    if(NOT physx_result EQUAL 0)
        message(FATAL_ERROR "cargo could not fetch the crate physx-sys; is the crate registry reachable?")
    endif()
    string(JSON physx_package_count LENGTH "${physx_metadata}" packages)
    math(EXPR physx_last_package "${physx_package_count} - 1")
    foreach(i RANGE ${physx_last_package})
        string(JSON physx_package_name GET "${physx_metadata}" packages ${i} name)
        if(physx_package_name STREQUAL "physx-sys")
            string(JSON physx_manifest GET "${physx_metadata}" packages ${i} manifest_path)
            set(PHYSX_CRATE_MANIFEST ${physx_manifest} CACHE FILEPATH "Manifest of the unpacked physx-sys crate" FORCE)
        endif()
    endforeach()
endif()
cmake_path(GET PHYSX_CRATE_MANIFEST PARENT_PATH physx_source_dir)
set(PHYSX_LICENCE ${physx_source_dir}/LICENSE-BSD) # the SDK's; whoever ships the program ships this text

add_custom_command(
    OUTPUT ${PHYSX_ARCHIVE}
    COMMAND ${CMAKE_COMMAND} -E env ${PHYSX_CARGO_ENV} ${CARGO_PROGRAM} build --release --locked
    # cargo leaves an archive that is up to date alone; its time stamp must still follow ours.
    COMMAND ${CMAKE_COMMAND} -E touch ${PHYSX_ARCHIVE}
    DEPENDS ${PHYSX_CRATE_DIR}/Cargo.toml ${PHYSX_CRATE_DIR}/Cargo.lock ${PHYSX_CRATE_DIR}/src/lib.rs
    WORKING_DIRECTORY ${PHYSX_CRATE_DIR}
    COMMENT "Building the physics SDK (once, a few minutes)"
    USES_TERMINAL VERBATIM)
add_custom_target(physx_archive DEPENDS ${PHYSX_ARCHIVE})

add_library(physx INTERFACE)
add_dependencies(physx physx_archive)
target_include_directories(physx SYSTEM INTERFACE
    ${physx_source_dir}/PhysX/physx/include ${physx_source_dir}/PhysX/pxshared/include)
# The archive is a release build: whoever includes its headers must see NDEBUG, whatever the build type.
target_compile_definitions(physx INTERFACE PX_PHYSX_STATIC_LIB NDEBUG)
target_link_libraries(physx INTERFACE ${PHYSX_ARCHIVE} pthread ${CMAKE_DL_LIBS})
