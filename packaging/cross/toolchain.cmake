# Builds for 64-bit Windows with Debian's cross compiler. Qt is built with this file, and remembers its place:
# the program, built with Qt's own toolchain file, reads it as well.
set(CMAKE_SYSTEM_NAME Windows)
set(CMAKE_SYSTEM_PROCESSOR x86_64)
set(cross x86_64-w64-mingw32)
# The variant with POSIX threads has a complete std::thread, whichever one the machine prefers.
set(CMAKE_C_COMPILER ${cross}-gcc-posix)
set(CMAKE_CXX_COMPILER ${cross}-g++-posix)
set(CMAKE_RC_COMPILER ${cross}-windres)
# Nothing of the compiler's own runtime may be needed beside the program.
set(CMAKE_EXE_LINKER_FLAGS_INIT -static)
set(CMAKE_FIND_ROOT_PATH /usr/${cross})
set(CMAKE_FIND_ROOT_PATH_MODE_PROGRAM NEVER)
set(CMAKE_FIND_ROOT_PATH_MODE_LIBRARY ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_INCLUDE ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_PACKAGE ONLY)
