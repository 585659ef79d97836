# What goes into a package, and the target "packages" that makes those of both word sizes.
# packaging/README.md tells what the package's folders hold.
set(programs TavLumenarDialogs aygshell TavLumenarShell PegHelp citydb)
add_custom_target(package_files DEPENDS ${programs})

install(TARGETS ${programs} RUNTIME DESTINATION bin COMPONENT package)
install(FILES ${PROJECT_SOURCE_DIR}/device/help/TavLumenar.htm DESTINATION bin COMPONENT package)
file(GLOB translations CONFIGURE_DEPENDS ${PROJECT_SOURCE_DIR}/device/languages/*/TavLumenar.txt)
# A language for looking at layouts, not for reading.
list(FILTER translations EXCLUDE REGEX "/pseudo/")
foreach(translation ${translations})
    cmake_path(GET translation PARENT_PATH language)
    cmake_path(GET language FILENAME language)
    install(FILES ${translation} DESTINATION bin/languages/${language} COMPONENT package)
endforeach()
# What citydb builds databases with.
install(FILES /usr/share/iso-codes/json/iso_3166-1.json /usr/share/zoneinfo/zone.tab
    DESTINATION bin/citydb COMPONENT package)

file(GLOB headers CONFIGURE_DEPENDS ${PROJECT_SOURCE_DIR}/include/*.h)
install(FILES ${headers} DESTINATION include COMPONENT package)
# The definition file is for compilers that make import libraries of their own.
install(FILES $<TARGET_LINKER_FILE:TavLumenarDialogs> ${PROJECT_SOURCE_DIR}/frame/TavLumenarDialogs.def
    DESTINATION lib COMPONENT package)

install(FILES README.md CHANGELOG.md NOTICES.md DESTINATION . COMPONENT package)
install(FILES packaging/PACKAGE.md DESTINATION . COMPONENT package)
install(DIRECTORY docs examples DESTINATION . COMPONENT package)
install(FILES /usr/share/common-licenses/LGPL-2.1 DESTINATION licences COMPONENT package)

if(CMAKE_SIZEOF_VOID_P EQUAL 8)
    get_filename_component(outputs ${CMAKE_BINARY_DIR} DIRECTORY)
    add_custom_target(packages DEPENDS package_files USES_TERMINAL
        WORKING_DIRECTORY ${PROJECT_SOURCE_DIR}
        COMMAND ${CMAKE_COMMAND} --preset i686 -B ${outputs}/i686
        COMMAND ${CMAKE_COMMAND} --build ${outputs}/i686 --target package_files
        COMMAND scripts/cities.sh
        COMMAND packaging/pack.sh ${outputs}/packages ${PROJECT_VERSION} out/data/CitiesDb.dat
            x86_64=${CMAKE_BINARY_DIR} i686=${outputs}/i686)
endif()
