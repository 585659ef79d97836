# What every Windows binary of the project shares.
add_compile_definitions(UNICODE _UNICODE _WIN32_WINNT=0x0601 WINVER=0x0601 _WIN32_IE=0x0700)
add_compile_options($<$<CONFIG:Release>:-O2> -ffunction-sections)
# Everything linked in: a binary needs system DLLs only.
add_link_options(-static -Wl,--gc-sections)
