# Reading zip archives: zlib's inflate and the unzip part of minizip, both linked statically.
if(WIN32)
    # By its path: "-lz" would find the import library first.
    add_library(tav_zlib STATIC IMPORTED)
    set_target_properties(tav_zlib PROPERTIES
        IMPORTED_LOCATION /usr/${CMAKE_SYSTEM_PROCESSOR}-w64-mingw32/lib/libz.a)
else()
    find_package(ZLIB REQUIRED)
    add_library(tav_zlib INTERFACE)
    target_link_libraries(tav_zlib INTERFACE ZLIB::ZLIB)
endif()

set(TAV_MINIZIP_DIR ${PROJECT_SOURCE_DIR}/out/third-party/minizip)
if(NOT EXISTS ${TAV_MINIZIP_DIR}/unzip.c)
    message(FATAL_ERROR "minizip is not there: run scripts/setup.sh")
endif()

# add_minizip(name): the library as its makers left it, but for the case of names.
function(add_minizip name)
    add_library(${name} STATIC ${TAV_MINIZIP_DIR}/unzip.c ${TAV_MINIZIP_DIR}/ioapi.c)
    target_include_directories(${name} SYSTEM PUBLIC ${TAV_MINIZIP_DIR})
    # Names are found whatever their case, on every system.
    target_compile_definitions(${name} PRIVATE CASESENSITIVITYDEFAULT_NO)
    target_compile_options(${name} PRIVATE -w)
    target_link_libraries(${name} PUBLIC tav_zlib)
endfunction()

add_minizip(tav_minizip)
if(NOT WIN32)
    # The tests and fuzzers are to see what the library does with bad archives.
    target_compile_options(tav_minizip PRIVATE
        -fsanitize=address,fuzzer-no-link -fno-omit-frame-pointer)
    # For measuring, without that.
    add_minizip(tav_minizip_plain)
endif()
