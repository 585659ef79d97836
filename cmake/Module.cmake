# The module itself: the rooms linked into one DLL, with its resources and the five exports.
add_library(TavLumenarDialogs SHARED
    frame/DllMain.cpp frame/Exports.cpp frame/TavLumenarDialogs.def resources/Module.rc)
set_target_properties(TavLumenarDialogs PROPERTIES PREFIX "" LINKER_LANGUAGE CXX)
target_compile_definitions(TavLumenarDialogs PRIVATE TAVLUMENAR_DIALOGS_EXPORTS)
target_include_directories(TavLumenarDialogs PUBLIC ${PROJECT_SOURCE_DIR})
target_link_libraries(TavLumenarDialogs PRIVATE tav_warnings tav_dialogs_menu)
# 32-bit names are decorated; the exports are found by their plain names.
target_link_options(TavLumenarDialogs PRIVATE -s -Wl,--enable-stdcall-fixup)
file(GLOB resource_parts CONFIGURE_DEPENDS resources/*.rc2 resources/*.h resources/dialogs/*.rc2)
set_source_files_properties(resources/Module.rc PROPERTIES OBJECT_DEPENDS "${resource_parts}")
