# add_version(target TYPE description): gives a program (APP) or library (DLL) its version resource.
# The version is the project's, so that it stands in one place.
function(add_version target type description)
    get_target_property(name ${target} OUTPUT_NAME)
    if(NOT name)
        set(name ${target})
    endif()
    set(extension .exe)
    if(type STREQUAL DLL)
        set(extension .dll)
    endif()
    set(script ${CMAKE_CURRENT_BINARY_DIR}/${target}.version.rc)
    file(CONFIGURE OUTPUT ${script} CONTENT "#include <windows.h>

#define TAV_VERSION \"${PROJECT_VERSION}\"
#define TAV_VERSION_NUMBERS ${PROJECT_VERSION_MAJOR}, ${PROJECT_VERSION_MINOR}, ${PROJECT_VERSION_PATCH}, 0
#define TAV_FILE_TYPE VFT_${type}
#define TAV_FILE_DESCRIPTION \"${description}\"
#define TAV_INTERNAL_NAME \"${name}\"
#define TAV_FILE_NAME \"${name}${extension}\"

#include \"resources/Version.rc2\"
")
    set_property(SOURCE ${script} APPEND PROPERTY
        OBJECT_DEPENDS ${PROJECT_SOURCE_DIR}/resources/Version.rc2)
    set_property(SOURCE ${script} APPEND PROPERTY INCLUDE_DIRECTORIES ${PROJECT_SOURCE_DIR})
    target_sources(${target} PRIVATE ${script})
endfunction()
