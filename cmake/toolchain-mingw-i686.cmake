set(TAV_MACHINE i686)
include(${CMAKE_CURRENT_LIST_DIR}/toolchain-mingw.cmake)
