set(TAV_MACHINE x86_64)
include(${CMAKE_CURRENT_LIST_DIR}/toolchain-mingw.cmake)
