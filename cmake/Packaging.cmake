# The Linux install layout and its packages: the executable in bin/, the language files and the FAQ under
# share/pavonel/ (where the program looks when it runs from bin/), the desktop entry, AppStream metainfo
# and icon in their XDG places, and a .deb and a .tar.gz made by CPack.
include(GNUInstallDirs)

set(_linux ${PROJECT_SOURCE_DIR}/packaging/linux)

install(TARGETS pavonel RUNTIME DESTINATION ${CMAKE_INSTALL_BINDIR})
install(DIRECTORY ${PROJECT_SOURCE_DIR}/config ${PROJECT_SOURCE_DIR}/doc DESTINATION ${CMAKE_INSTALL_DATADIR}/pavonel)
install(FILES ${_linux}/${PAVONEL_APP_ID}.desktop DESTINATION ${CMAKE_INSTALL_DATADIR}/applications)
install(FILES ${_linux}/${PAVONEL_APP_ID}.metainfo.xml DESTINATION ${CMAKE_INSTALL_DATADIR}/metainfo)
install(FILES ${_linux}/${PAVONEL_APP_ID}.svg DESTINATION ${CMAKE_INSTALL_DATADIR}/icons/hicolor/scalable/apps)

# The PNG sizes are drawn from the SVG when the package is built.
find_program(PAVONEL_RSVG_CONVERT rsvg-convert REQUIRED)
foreach(_size 32 48 64 128 256)
    set(_png ${CMAKE_BINARY_DIR}/icons/${_size}/${PAVONEL_APP_ID}.png)
    add_custom_command(OUTPUT ${_png}
        COMMAND ${CMAKE_COMMAND} -E make_directory ${CMAKE_BINARY_DIR}/icons/${_size}
        COMMAND ${PAVONEL_RSVG_CONVERT} -w ${_size} -h ${_size} -o ${_png} ${_linux}/${PAVONEL_APP_ID}.svg
        DEPENDS ${_linux}/${PAVONEL_APP_ID}.svg VERBATIM)
    list(APPEND _pngs ${_png})
    install(FILES ${_png} DESTINATION ${CMAKE_INSTALL_DATADIR}/icons/hicolor/${_size}x${_size}/apps)
endforeach()
add_custom_target(pavonel_icons ALL DEPENDS ${_pngs})

# What Debian asks of every package: its copyright, and the changelog of a native package, compressed.
set(_changelog ${CMAKE_BINARY_DIR}/changelog.gz)
add_custom_command(OUTPUT ${_changelog}
    COMMAND gzip -9nc ${_linux}/changelog > ${_changelog}
    DEPENDS ${_linux}/changelog VERBATIM)
add_custom_target(pavonel_changelog ALL DEPENDS ${_changelog})
install(FILES ${_linux}/copyright ${_changelog} DESTINATION ${CMAKE_INSTALL_DATADIR}/doc/pavonel)

set(CPACK_GENERATOR "DEB;TGZ")
set(CPACK_PACKAGE_NAME "pavonel")
set(CPACK_PACKAGE_VENDOR "The Pavonel developers")
set(CPACK_PACKAGE_CONTACT "The Pavonel developers <developers@pavonel.example.org>")
set(CPACK_PACKAGE_DESCRIPTION_SUMMARY "launcher and settings manager for the game Tarvolin")
set(CPACK_PACKAGE_DESCRIPTION
    "Pavonel keeps named profiles of Tarvolin's settings, edits the active one in\n\
a tabbed window and starts the game with the command line it produces. It also\n\
opens the game's log file and folder, writes shortcuts that start the game,\n\
speaks English and German, and asks its maker's site for updates.")
set(CPACK_STRIP_FILES ON)
set(CPACK_PACKAGING_INSTALL_PREFIX "/usr")
set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_PACKAGE_SECTION "utils")
set(CPACK_DEBIAN_PACKAGE_HOMEPAGE "https://${PAVONEL_WEB_HOST}/")
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)
# Folders, documents and web pages open through xdg-open; Qt's own texts come in the chosen language.
set(CPACK_DEBIAN_PACKAGE_DEPENDS "xdg-utils")
set(CPACK_DEBIAN_PACKAGE_RECOMMENDS "qt6-translations-l10n")
set(CPACK_DEBIAN_PACKAGE_SUGGESTS "wine")
set(CPACK_DEBIAN_PACKAGE_CONTROL_STRICT_PERMISSION ON)
include(CPack)
