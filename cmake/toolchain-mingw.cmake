# Cross-compilation for Windows with Debian's mingw-w64; the including file names the machine.
set(CMAKE_SYSTEM_NAME Windows)
set(CMAKE_SYSTEM_PROCESSOR ${TAV_MACHINE})
set(CMAKE_C_COMPILER ${TAV_MACHINE}-w64-mingw32-gcc-posix)
set(CMAKE_CXX_COMPILER ${TAV_MACHINE}-w64-mingw32-g++-posix)
set(CMAKE_RC_COMPILER ${TAV_MACHINE}-w64-mingw32-windres)
set(CMAKE_FIND_ROOT_PATH /usr/${TAV_MACHINE}-w64-mingw32)
set(CMAKE_FIND_ROOT_PATH_MODE_PROGRAM NEVER)
set(CMAKE_FIND_ROOT_PATH_MODE_LIBRARY ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_INCLUDE ONLY)
# The launcher picks the Wine prefix and the virtual screen that a test asks for.
set(CMAKE_CROSSCOMPILING_EMULATOR ${CMAKE_CURRENT_LIST_DIR}/../scripts/wine-run)
