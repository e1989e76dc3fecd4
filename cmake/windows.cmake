# Toolchain for Windows programs that are built on Debian, with the MinGW compilers that have threads. ZOLV_QT is the
# folder of a Qt that was built with this same file; while that is being built there is none.
set(CMAKE_SYSTEM_NAME Windows)
set(CMAKE_SYSTEM_PROCESSOR x86_64)

set(prefix x86_64-w64-mingw32)
set(CMAKE_C_COMPILER ${prefix}-gcc-posix)
set(CMAKE_CXX_COMPILER ${prefix}-g++-posix)
set(CMAKE_RC_COMPILER ${prefix}-windres)

# Libraries, headers and packages of the target alone, programs of the host alone. What CMake tries out sees the same.
list(APPEND CMAKE_TRY_COMPILE_PLATFORM_VARIABLES ZOLV_QT)
set(CMAKE_FIND_ROOT_PATH /usr/${prefix} ${ZOLV_QT})
set(CMAKE_FIND_ROOT_PATH_MODE_PROGRAM NEVER)
set(CMAKE_FIND_ROOT_PATH_MODE_LIBRARY ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_INCLUDE ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_PACKAGE ONLY)
