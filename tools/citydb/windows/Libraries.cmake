# What the tool needs on Windows: two libraries of headers, as Debian has them for any machine, and
# the module's own zip library with its writing half.
set(headers ${CMAKE_CURRENT_BINARY_DIR}/headers)
file(MAKE_DIRECTORY ${headers})
# Linked one by one: the Linux headers beside them must stay out of sight.
foreach(folder nlohmann CLI)
    file(CREATE_LINK /usr/include/${folder} ${headers}/${folder} SYMBOLIC)
endforeach()
add_library(tav_minizip_writer STATIC ${TAV_MINIZIP_DIR}/zip.c ${TAV_MINIZIP_DIR}/iowin32.c)
target_compile_options(tav_minizip_writer PRIVATE -w)
target_link_libraries(tav_minizip_writer PUBLIC tav_minizip)
target_include_directories(tav_citydb SYSTEM PUBLIC ${headers})
target_link_libraries(tav_citydb PRIVATE tav_minizip_writer)
target_link_options(tav_citydb PUBLIC -municode)
