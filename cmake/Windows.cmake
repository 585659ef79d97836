# What every Windows binary of the project shares.
add_compile_definitions(UNICODE _UNICODE _WIN32_WINNT=0x0601 WINVER=0x0601 _WIN32_IE=0x0700)
# For speed, but where the tables for exceptions take so much that the module would be too large.
if(CMAKE_SIZEOF_VOID_P EQUAL 8)
    set(optimisation -O2)
else()
    set(optimisation -Os)
endif()
add_compile_options($<$<CONFIG:Release>:${optimisation}> -ffunction-sections)
# Everything linked in: a binary needs system DLLs only.
add_link_options(-static -Wl,--gc-sections)
# Loaded at another address each time, data that can't be run, and the same bytes from every build.
add_link_options(-Wl,--dynamicbase,--nxcompat,--no-insert-timestamp)
if(CMAKE_SIZEOF_VOID_P EQUAL 8)
    add_link_options(-Wl,--high-entropy-va)
endif()
