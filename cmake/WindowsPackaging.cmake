# The Windows packages, made by CPack on the build machine: a portable ZIP (the program with its texts
# beside it, as it runs from any folder it may write) and a 64-bit NSIS installer that puts the same files
# into Program Files for every user, with a Start-menu entry and an entry in the list of installed programs.
# The installer writes an uninstaller beside the program; the program takes that as the sign that it is
# installed and keeps its settings in %APPDATA%\Pavonel, which the uninstaller leaves alone.
install(TARGETS pavonel RUNTIME DESTINATION .)
install(DIRECTORY ${PROJECT_SOURCE_DIR}/config ${PROJECT_SOURCE_DIR}/doc DESTINATION .)
install(FILES ${PROJECT_SOURCE_DIR}/README.md DESTINATION .)
install(FILES ${PROJECT_SOURCE_DIR}/packaging/linux/copyright DESTINATION . RENAME LICENSE.txt)

# NSIS makes 32-bit installers unless told otherwise, and a 32-bit installer would land in the 32-bit
# Program Files and registry. CPack's own template takes no target, so the project's copy is CMake's
# template with the Target line after its first line (which begins with a byte-order mark). The copy is
# made from the CMake that builds, so it always matches that CMake's CPack.
set(_nsis_template ${CMAKE_ROOT}/Modules/Internal/CPack/NSIS.template.in)
file(READ ${_nsis_template} _template)
string(FIND "${_template}" "\n" _first_line_end)
math(EXPR _rest_begin "${_first_line_end} + 1")
string(SUBSTRING "${_template}" 0 ${_rest_begin} _first_line)
string(SUBSTRING "${_template}" ${_rest_begin} -1 _rest)
file(WRITE ${CMAKE_BINARY_DIR}/nsis/NSIS.template.in "${_first_line}Target amd64-unicode\n${_rest}")
set_property(DIRECTORY APPEND PROPERTY CMAKE_CONFIGURE_DEPENDS ${_nsis_template})
list(PREPEND CMAKE_MODULE_PATH ${CMAKE_BINARY_DIR}/nsis)

# The packages need only the program, not the test suite that the same build tree holds.
set(CMAKE_SKIP_INSTALL_ALL_DEPENDENCY ON)

set(CPACK_GENERATOR "ZIP;NSIS")
set(CPACK_PACKAGE_NAME "Pavonel")
set(CPACK_PACKAGE_VENDOR "The Pavonel developers")
set(CPACK_PACKAGE_FILE_NAME "pavonel-${PROJECT_VERSION}-win64")
set(CPACK_RESOURCE_FILE_LICENSE ${PROJECT_SOURCE_DIR}/packaging/linux/copyright)
# One folder and one entry in the installed programs, whatever the version: a new version replaces the old.
set(CPACK_PACKAGE_INSTALL_DIRECTORY "Pavonel")
set(CPACK_PACKAGE_INSTALL_REGISTRY_KEY "Pavonel")
set(CPACK_NSIS_INSTALL_ROOT "$PROGRAMFILES64")
set(CPACK_NSIS_DISPLAY_NAME "Pavonel")
# Also the Start-menu folder's name, which stays the same from one version to the next.
set(CPACK_NSIS_PACKAGE_NAME "Pavonel")
set(CPACK_NSIS_INSTALLED_ICON_NAME "pavonel.exe")
set(CPACK_NSIS_URL_INFO_ABOUT "https://${PAVONEL_WEB_HOST}/")
# The program's uninstaller name is the one Win32Platform looks for (platform::kUninstallerName).
set(CPACK_NSIS_UNINSTALL_NAME "Uninstall")
set(CPACK_PACKAGE_EXECUTABLES "pavonel;Pavonel")
include(CPack)
