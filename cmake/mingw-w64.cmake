# Builds for 64-bit Windows with Debian's mingw-w64, and runs what it has built under Wine.
# What Debian does not have for it comes from the folders in VELDRA_WINDOWS_PREFIX, which
# setup/windows-libraries.sh and setup/windows-qt.sh fill.
set(CMAKE_SYSTEM_NAME Windows)
set(CMAKE_SYSTEM_PROCESSOR x86_64)

# The "posix" flavour is the one with std::thread.
set(CMAKE_C_COMPILER x86_64-w64-mingw32-gcc-posix)
set(CMAKE_CXX_COMPILER x86_64-w64-mingw32-g++-posix)
set(CMAKE_RC_COMPILER x86_64-w64-mingw32-windres)

set(VELDRA_WINDOWS_PREFIX ${CMAKE_CURRENT_LIST_DIR}/../build/windows-libraries
  CACHE STRING "Folders with libraries and headers for Windows")
list(APPEND CMAKE_TRY_COMPILE_PLATFORM_VARIABLES VELDRA_WINDOWS_PREFIX)
set(CMAKE_FIND_ROOT_PATH ${VELDRA_WINDOWS_PREFIX} /usr/x86_64-w64-mingw32)
set(CMAKE_FIND_ROOT_PATH_MODE_PROGRAM NEVER)
set(CMAKE_FIND_ROOT_PATH_MODE_LIBRARY ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_INCLUDE ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_PACKAGE ONLY)
list(TRANSFORM VELDRA_WINDOWS_PREFIX APPEND /lib/pkgconfig OUTPUT_VARIABLE pkgconfig_folders)
list(JOIN pkgconfig_folders ":" pkgconfig_folders)
set(ENV{PKG_CONFIG_LIBDIR} ${pkgconfig_folders})

# The compiler's own libraries go into each program and library: a machine that has never seen the
# compiler can run them.
foreach(kind EXE SHARED MODULE)
  set(CMAKE_${kind}_LINKER_FLAGS_INIT
    "-static -wrapper \"${CMAKE_CURRENT_LIST_DIR}/../setup/mingw-lld\"")
endforeach()

set(CMAKE_CROSSCOMPILING_EMULATOR ${CMAKE_CURRENT_LIST_DIR}/../setup/wine)
