# The module's objects are made on first use by one thread, the caller's: no locks around that, which
# would bring a thread library along.
add_library(tav_one_thread INTERFACE)
target_compile_options(tav_one_thread INTERFACE -fno-threadsafe-statics)

# For scripts/coverage.sh: the lines that run are counted.
add_library(tav_coverage INTERFACE)
if(TAV_COVERAGE)
    target_compile_options(tav_coverage INTERFACE --coverage -Og)
    target_link_options(tav_coverage INTERFACE --coverage)
endif()

# add_room(name [THREADS] [LINK libs...]): one static library from the sources of the calling folder.
# The file list follows the folder, so a new file needs no line here. THREADS: it starts some.
function(add_room name)
    cmake_parse_arguments(ROOM "THREADS" "" "LINK;SOURCES" ${ARGN})
    if(NOT ROOM_SOURCES)
        file(GLOB ROOM_SOURCES CONFIGURE_DEPENDS *.cpp *.h)
    endif()
    add_library(${name} STATIC ${ROOM_SOURCES})
    set_target_properties(${name} PROPERTIES LINKER_LANGUAGE CXX)
    target_include_directories(${name} PUBLIC ${PROJECT_SOURCE_DIR})
    target_link_libraries(${name} PUBLIC ${ROOM_LINK} PRIVATE tav_warnings tav_coverage)
    if(NOT ROOM_THREADS)
        target_link_libraries(${name} PRIVATE tav_one_thread)
    endif()
endfunction()
