# Warnings for our own code; third-party code comes in as system headers.
add_library(tav_warnings INTERFACE)
target_compile_options(tav_warnings INTERFACE
    -Wall -Wextra -Wconversion -Wshadow -Werror
    # The window-template macros switch and cast by design.
    -Wno-unknown-pragmas)
