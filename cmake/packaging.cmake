# Two packages of one build: an archive of the game folder, which runs where it is unpacked, and a Debian package, whose
# launcher makes a game folder for each user. `cmake --install` alone puts the game folder's tree into its prefix.

set(TORVANE_PACKAGE_DIR lib/torvane-scenario-editor)
set(TORVANE_APP_ID org.torvane.ScenarioEditor)

# The tree of a game folder, once for the game folder itself and once for the package that copies it to the users.
function(torvane_install_game_tree destination component)
    install(TARGETS TorvaneScenarioEditor TorvaneScenarioEditor-English
        RUNTIME DESTINATION ${destination} COMPONENT ${component} ${ARGN})
    install(FILES "${TORVANE_GAME_DIR}/ScenarioEditor/ScenarioData.mdb"
                  "${TORVANE_GAME_DIR}/ScenarioEditor/ShipDatabase.mdb"
                  "${TORVANE_GAME_DIR}/ScenarioEditor/SE_README.HLP"
        DESTINATION ${destination}/ScenarioEditor COMPONENT ${component} ${ARGN})
endfunction()

file(GLOB delivered_scenarios CONFIGURE_DEPENDS "${CMAKE_SOURCE_DIR}/data/scenarios/*/*.scn")

torvane_install_game_tree(. game)
# A game folder is its author's: a scenario of that name that is there already may be his, and stays as it is.
install(CODE "
    set(scenarios [[${delivered_scenarios}]])
    set(folder \"\${CMAKE_INSTALL_PREFIX}/Scenarios\")
    foreach(scenario IN LISTS scenarios)
        get_filename_component(name \"\${scenario}\" NAME)
        if(NOT EXISTS \"\$ENV{DESTDIR}\${folder}/\${name}\")
            file(INSTALL DESTINATION \"\${folder}\" TYPE FILE FILES \"\${scenario}\")
        endif()
    endforeach()" COMPONENT game)
install(FILES packaging/README.txt DESTINATION . COMPONENT archive EXCLUDE_FROM_ALL)

# What belongs to a desktop is left out of a game folder.
torvane_install_game_tree(${TORVANE_PACKAGE_DIR} desktop EXCLUDE_FROM_ALL)
install(FILES ${delivered_scenarios}
    DESTINATION ${TORVANE_PACKAGE_DIR}/Scenarios COMPONENT desktop EXCLUDE_FROM_ALL)
install(TARGETS torvane-scenario-editor RUNTIME DESTINATION bin COMPONENT desktop EXCLUDE_FROM_ALL)
install(FILES packaging/${TORVANE_APP_ID}.desktop
    DESTINATION share/applications COMPONENT desktop EXCLUDE_FROM_ALL)
install(FILES packaging/${TORVANE_APP_ID}.metainfo.xml
    DESTINATION share/metainfo COMPONENT desktop EXCLUDE_FROM_ALL)
install(FILES LICENSE RENAME copyright
    DESTINATION share/doc/torvane-scenario-editor COMPONENT desktop EXCLUDE_FROM_ALL)
install(FILES data/icons/editor.svg RENAME ${TORVANE_APP_ID}.svg
    DESTINATION share/icons/hicolor/scalable/apps COMPONENT desktop EXCLUDE_FROM_ALL)
set(icon_folder "${CMAKE_BINARY_DIR}/icons")
set(icons)
foreach(size 16 22 24 32 48 64 128 256 512)
    list(APPEND icons "${icon_folder}/${size}.png")
    install(FILES "${icon_folder}/${size}.png" RENAME ${TORVANE_APP_ID}.png
        DESTINATION share/icons/hicolor/${size}x${size}/apps COMPONENT desktop EXCLUDE_FROM_ALL)
endforeach()
add_custom_command(OUTPUT ${icons}
    COMMAND make_icons "${CMAKE_SOURCE_DIR}/data/icons/editor.svg" "${icon_folder}"
    DEPENDS make_icons "${CMAKE_SOURCE_DIR}/data/icons/editor.svg"
    COMMENT "Drawing the icon in the usual sizes"
    VERBATIM)
add_custom_target(package_files DEPENDS game torvane-scenario-editor ${icons})

set(CPACK_PACKAGE_NAME torvane-scenario-editor)
set(CPACK_PACKAGE_VENDOR Quillmark)
set(CPACK_PACKAGE_CONTACT "Quillmark <scenario-editor@torvane.org>")
set(CPACK_PACKAGE_DESCRIPTION_SUMMARY "scenario editor of the naval game Torvane")
set(CPACK_GENERATOR TGZ DEB)
set(CPACK_PROJECT_CONFIG_FILE "${CMAKE_SOURCE_DIR}/cmake/package_contents.cmake")
set(CPACK_ARCHIVE_COMPONENT_INSTALL ON)
set(CPACK_DEB_COMPONENT_INSTALL ON)
set(CPACK_COMPONENTS_GROUPING ALL_COMPONENTS_IN_ONE)
set(CPACK_COMPONENT_INCLUDE_TOPLEVEL_DIRECTORY ON)
set(CPACK_STRIP_FILES ON)
set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_PACKAGE_SECTION games)
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)
# What is loaded at run time only: the driver of the databases, the window system, the texts of the toolkit.
set(CPACK_DEBIAN_PACKAGE_DEPENDS "libqt6sql6-sqlite, qt6-qpa-plugins, qt6-translations-l10n")
set(CPACK_DEBIAN_PACKAGE_RECOMMENDS "qt6-wayland")
include(CPack)
