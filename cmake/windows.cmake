# For building for Windows on Debian: -DCMAKE_TOOLCHAIN_FILE=cmake/windows.cmake. Everything is linked
# into the programs but libraries that each Windows has.
set(CMAKE_SYSTEM_NAME Windows)
set(CMAKE_SYSTEM_PROCESSOR x86_64)
set(CMAKE_C_COMPILER x86_64-w64-mingw32-gcc-posix)
set(CMAKE_CXX_COMPILER x86_64-w64-mingw32-g++-posix)
set(CMAKE_RC_COMPILER x86_64-w64-mingw32-windres)
set(CMAKE_EXE_LINKER_FLAGS_INIT -static)

list(APPEND CMAKE_FIND_ROOT_PATH /usr/x86_64-w64-mingw32 ${QT_FOR_WINDOWS})
list(APPEND CMAKE_PREFIX_PATH ${QT_FOR_WINDOWS})
list(APPEND CMAKE_TRY_COMPILE_PLATFORM_VARIABLES QT_FOR_WINDOWS)
set(CMAKE_FIND_ROOT_PATH_MODE_PROGRAM NEVER)
set(CMAKE_FIND_ROOT_PATH_MODE_LIBRARY ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_INCLUDE ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_PACKAGE ONLY)

# Qt's own tools run here: Debian's, of the same version.
set(QT_HOST_PATH /usr)
set(QT_HOST_PATH_CMAKE_DIR /usr/lib/x86_64-linux-gnu/cmake)
