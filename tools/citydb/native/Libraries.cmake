# What the tool needs where the project is built.
find_package(nlohmann_json REQUIRED)
find_package(CLI11 REQUIRED)
find_package(ICU REQUIRED COMPONENTS i18n uc)
# Debian's own package file for libzip also asks for programs that are packaged apart.
find_path(LIBZIP_INCLUDE zip.h REQUIRED)
find_library(LIBZIP_LIBRARY zip REQUIRED)
target_include_directories(tav_citydb SYSTEM PRIVATE ${LIBZIP_INCLUDE})
target_link_libraries(tav_citydb
    PUBLIC nlohmann_json::nlohmann_json CLI11::CLI11 ICU::i18n ICU::uc ${LIBZIP_LIBRARY})
if(NOT TAV_TOOLS_ONLY)
    # Beside the tests of the pure code, which run under the sanitizers too.
    set(sanitizers -fsanitize=address,undefined -fno-sanitize-recover=all -fno-omit-frame-pointer)
    target_compile_options(tav_citydb PUBLIC ${sanitizers})
    target_link_options(tav_citydb PUBLIC ${sanitizers})
endif()
