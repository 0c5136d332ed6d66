# Cross-compiles for 64-bit Windows with Debian's mingw-w64 (the POSIX-thread flavour, which has
# std::thread). The executables link the compiler's runtime statically, so they run without extra DLLs,
# and CTest starts them through Wine.
set(CMAKE_SYSTEM_NAME Windows)
set(CMAKE_SYSTEM_PROCESSOR x86_64)

set(_pavonel_target x86_64-w64-mingw32)
set(CMAKE_C_COMPILER ${_pavonel_target}-gcc-posix)
set(CMAKE_CXX_COMPILER ${_pavonel_target}-g++-posix)
set(CMAKE_RC_COMPILER ${_pavonel_target}-windres)

set(CMAKE_FIND_ROOT_PATH /usr/${_pavonel_target})
set(CMAKE_FIND_ROOT_PATH_MODE_PROGRAM NEVER)
set(CMAKE_FIND_ROOT_PATH_MODE_LIBRARY ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_INCLUDE ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_PACKAGE ONLY)

set(CMAKE_EXE_LINKER_FLAGS_INIT "-static")

# Debian installs the 64-bit loader and the server outside the search path. The tests start through a
# script that says so when Wine itself did not start.
find_program(PAVONEL_WINE64 NAMES wine64 PATHS /usr/lib/wine NO_CMAKE_FIND_ROOT_PATH)
find_program(PAVONEL_WINESERVER NAMES wineserver PATHS /usr/lib/wine NO_CMAKE_FIND_ROOT_PATH)
if(PAVONEL_WINE64 AND PAVONEL_WINESERVER)
    set(CMAKE_CROSSCOMPILING_EMULATOR ${CMAKE_CURRENT_LIST_DIR}/../wine/run ${PAVONEL_WINE64})
else()
    message(WARNING "wine64 was not found: the Windows tests are built but cannot run here.")
endif()
