# The module itself: the rooms linked into one DLL, with its resources and the five exports.
add_library(TavLumenarDialogs SHARED
    frame/DllMain.cpp frame/ExceptionMemory.cpp frame/Exports.cpp frame/RuntimeFailures.cpp
    frame/Terminate.cpp frame/TavLumenarDialogs.def resources/Module.rc)
set_target_properties(TavLumenarDialogs PROPERTIES PREFIX "" LINKER_LANGUAGE CXX)
target_compile_definitions(TavLumenarDialogs PRIVATE TAVLUMENAR_DIALOGS_EXPORTS)
target_include_directories(TavLumenarDialogs PUBLIC ${PROJECT_SOURCE_DIR})
target_link_libraries(TavLumenarDialogs PRIVATE tav_warnings tav_one_thread tav_coverage
    tav_dialogs_menu tav_dialogs_home tav_dialogs_now tav_dialogs_wizard tav_dialogs_city)
add_version(TavLumenarDialogs DLL "Customisation dialogs of the home screen")
# 32-bit names are decorated; the exports are found by their plain names.
target_link_options(TavLumenarDialogs PRIVATE -s -Wl,--enable-stdcall-fixup)
if(CMAKE_SIZEOF_VOID_P EQUAL 8)
    # Parts that begin on pages of the file are mapped when the DLL is loaded; others are read.
    target_link_options(TavLumenarDialogs PRIVATE -Wl,--file-alignment,4096)
endif()
file(GLOB resource_parts CONFIGURE_DEPENDS resources/*.rc2 resources/*.h resources/dialogs/*.rc2)
set_source_files_properties(resources/Module.rc PROPERTIES OBJECT_DEPENDS "${resource_parts}")
if(CMAKE_SIZEOF_VOID_P EQUAL 4)
    # A 32-bit host asks for the decorated names, which the linker's import library doesn't know.
    set(decorated ${CMAKE_BINARY_DIR}/TavLumenarDialogs.decorated.def)
    file(CONFIGURE OUTPUT ${decorated} CONTENT "LIBRARY TavLumenarDialogs.dll
EXPORTS
    CustomizeMenu@16
    CustomizeHome@16
    CustomizeNow@16
    InstallWizard@16
    SelectCity@12
")
    add_custom_command(TARGET TavLumenarDialogs POST_BUILD
        COMMAND ${CMAKE_DLLTOOL} --kill-at --input-def ${decorated}
            --output-lib $<TARGET_LINKER_FILE:TavLumenarDialogs>)
endif()
