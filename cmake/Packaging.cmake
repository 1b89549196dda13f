# What an installation consists of, and the packages made from it: a .deb (where Debian's tools are) and an archive, by
# target `package`. The program looks for its data in share/games/quackdash next to its own folder
# (platform/DataFolder), wherever both are put.
include(GNUInstallDirs)

set(QUACKDASH_APP_ID org.quackdash.quackdash)
set(CPACK_PACKAGE_CONTACT "Quackdash developers <developers@quackdash.example>")
set(CMAKE_INSTALL_DEFAULT_DIRECTORY_PERMISSIONS
    OWNER_READ OWNER_WRITE OWNER_EXECUTE GROUP_READ GROUP_EXECUTE WORLD_READ WORLD_EXECUTE)

# quackdash_install_gzipped(FILE NAME FOLDER): packed without name and time, for the same bytes on every run.
function(quackdash_install_gzipped file name folder)
    set(packed ${CMAKE_BINARY_DIR}/packaging/${name})
    add_custom_command(OUTPUT ${packed} COMMAND ${GZIP_PROGRAM} -9nc ${file} > ${packed} DEPENDS ${file} VERBATIM)
    add_custom_target(packed_${name} DEPENDS ${packed})
    add_dependencies(quackdash packed_${name}) # whoever has built the game can install it
    install(FILES ${packed} DESTINATION ${folder})
endfunction()

# The copyright file carries the licences' texts whole: ours, and that of the SDK which is inside the program.
function(quackdash_read_licence file result)
    file(READ ${file} text)
    string(REGEX REPLACE "^[^\n]*Copyright[^\n]*\n+" "" text "${text}")
    string(STRIP "${text}" text)
    string(REPLACE "\n\n" "\n.\n" text "${text}")
    string(REPLACE "\n" "\n " text " ${text}")
    set(${result} "${text}" PARENT_SCOPE)
endfunction()

file(READ ${CMAKE_SOURCE_DIR}/LICENSE licence)
string(REGEX REPLACE "^MIT License\n+" "" licence "${licence}")
file(WRITE ${CMAKE_BINARY_DIR}/packaging/licence "${licence}")
quackdash_read_licence(${CMAKE_BINARY_DIR}/packaging/licence QUACKDASH_LICENCE_TEXT)
quackdash_read_licence(${PHYSX_LICENCE} PHYSX_LICENCE_TEXT)
configure_file(${CMAKE_SOURCE_DIR}/packaging/copyright.in ${CMAKE_BINARY_DIR}/packaging/copyright @ONLY)

install(TARGETS quackdash DESTINATION games)
install(DIRECTORY ${CMAKE_SOURCE_DIR}/data/ DESTINATION ${CMAKE_INSTALL_DATADIR}/games/quackdash)
install(FILES ${CMAKE_SOURCE_DIR}/packaging/quackdash.desktop DESTINATION ${CMAKE_INSTALL_DATADIR}/applications)
install(FILES ${CMAKE_SOURCE_DIR}/packaging/${QUACKDASH_APP_ID}.metainfo.xml
    DESTINATION ${CMAKE_INSTALL_DATADIR}/metainfo)
foreach(size 32 48 64 128 256)
    install(FILES ${CMAKE_SOURCE_DIR}/packaging/icons/quackdash-${size}.png RENAME quackdash.png
        DESTINATION ${CMAKE_INSTALL_DATADIR}/icons/hicolor/${size}x${size}/apps)
endforeach()
install(FILES ${CMAKE_BINARY_DIR}/packaging/copyright DESTINATION ${CMAKE_INSTALL_DOCDIR})
install(FILES ${CMAKE_BINARY_DIR}/packaging/quackdash.6.gz DESTINATION ${CMAKE_INSTALL_MANDIR}/man6)
install(FILES ${CMAKE_BINARY_DIR}/packaging/completion/quackdash
    DESTINATION ${CMAKE_INSTALL_DATADIR}/bash-completion/completions)
quackdash_install_gzipped(${CMAKE_SOURCE_DIR}/CHANGELOG.md changelog.gz ${CMAKE_INSTALL_DOCDIR})
quackdash_install_gzipped(${CMAKE_SOURCE_DIR}/packaging/changelog.Debian changelog.Debian.gz ${CMAKE_INSTALL_DOCDIR})

set(CPACK_GENERATOR TGZ)
find_program(DPKG_SHLIBDEPS_PROGRAM dpkg-shlibdeps)
if(DPKG_SHLIBDEPS_PROGRAM)
    list(APPEND CPACK_GENERATOR DEB)
endif()
set(CPACK_STRIP_FILES ON)
set(CPACK_PACKAGE_FILE_NAME quackdash-${PROJECT_VERSION}-linux-${CMAKE_SYSTEM_PROCESSOR})
set(CPACK_PACKAGE_DESCRIPTION_FILE ${CMAKE_SOURCE_DIR}/packaging/description.txt)
set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_PACKAGE_RELEASE 1)
set(CPACK_DEBIAN_PACKAGE_SECTION games)
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)
set(CPACK_DEBIAN_PACKAGE_CONTROL_STRICT_PERMISSION ON)
set(CPACK_INSTALL_DEFAULT_DIRECTORY_PERMISSIONS ${CMAKE_INSTALL_DEFAULT_DIRECTORY_PERMISSIONS})
include(CPack)
