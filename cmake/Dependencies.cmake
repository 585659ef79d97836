# Third-party headers and libraries, as Debian ships them.

# Boost is headers only; its folder is isolated so that the Linux headers beside it stay out of sight.
set(TAV_BOOST_DIR ${CMAKE_BINARY_DIR}/boost)
file(MAKE_DIRECTORY ${TAV_BOOST_DIR})
file(CREATE_LINK /usr/include/boost ${TAV_BOOST_DIR}/boost SYMBOLIC)
add_library(tav_boost INTERFACE)
target_include_directories(tav_boost SYSTEM INTERFACE ${TAV_BOOST_DIR})

set(INSTALL_GTEST OFF CACHE BOOL "" FORCE)
set(gtest_disable_pthreads OFF CACHE BOOL "" FORCE)
add_subdirectory(/usr/src/googletest ${CMAKE_BINARY_DIR}/googletest EXCLUDE_FROM_ALL SYSTEM)
