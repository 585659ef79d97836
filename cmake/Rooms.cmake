# add_room(name [LINK libs...]): one static library from the sources of the calling folder.
# The file list follows the folder, so a new file needs no line here.
function(add_room name)
    cmake_parse_arguments(ROOM "" "" "LINK;SOURCES" ${ARGN})
    if(NOT ROOM_SOURCES)
        file(GLOB ROOM_SOURCES CONFIGURE_DEPENDS *.cpp *.h)
    endif()
    add_library(${name} STATIC ${ROOM_SOURCES})
    set_target_properties(${name} PROPERTIES LINKER_LANGUAGE CXX)
    target_include_directories(${name} PUBLIC ${PROJECT_SOURCE_DIR})
    target_link_libraries(${name} PUBLIC ${ROOM_LINK} PRIVATE tav_warnings)
endfunction()
