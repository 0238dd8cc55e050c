# The game folder that the build stages: both programs, ScenarioEditor/ with what lies there at the start,
# and Scenarios/. The same tree is what an installation puts into a real game folder.
set(TORVANE_GAME_DIR "${CMAKE_BINARY_DIR}/game")

# The custom targets `game` (everything that the editor needs to run) and the staging of its data files.
function(torvane_stage_game_folder)
    file(MAKE_DIRECTORY "${TORVANE_GAME_DIR}/ScenarioEditor" "${TORVANE_GAME_DIR}/Scenarios")
    set(tables "${TORVANE_GAME_DIR}/ScenarioEditor/ScenarioData.mdb")
    add_custom_command(OUTPUT "${tables}"
        COMMAND ${CMAKE_COMMAND} -E make_directory
            "${TORVANE_GAME_DIR}/ScenarioEditor" "${TORVANE_GAME_DIR}/Scenarios"
        COMMAND make_working_tables "${tables}"
        DEPENDS make_working_tables
        COMMENT "Staging ScenarioData.mdb"
        VERBATIM)
    set(catalogue "${TORVANE_GAME_DIR}/ScenarioEditor/ShipDatabase.mdb")
    set(catalogue_files "${CMAKE_SOURCE_DIR}/data/catalogue")
    add_custom_command(OUTPUT "${catalogue}"
        COMMAND ${CMAKE_COMMAND} -E make_directory "${TORVANE_GAME_DIR}/ScenarioEditor"
        COMMAND make_catalogue "${catalogue_files}" "${catalogue}"
        DEPENDS make_catalogue
            "${catalogue_files}/ships.csv" "${catalogue_files}/classes.csv" "${catalogue_files}/gun_ranges.csv"
        COMMENT "Staging ShipDatabase.mdb"
        VERBATIM)
    set(help "${TORVANE_GAME_DIR}/ScenarioEditor/SE_README.HLP")
    file(GLOB_RECURSE help_files CONFIGURE_DEPENDS "${CMAKE_SOURCE_DIR}/data/help/*")
    add_custom_command(OUTPUT "${help}"
        COMMAND ${CMAKE_COMMAND} -E make_directory "${TORVANE_GAME_DIR}/ScenarioEditor"
        COMMAND make_help "${CMAKE_SOURCE_DIR}/data/help" "${help}"
        DEPENDS make_help ${help_files}
        COMMENT "Staging SE_README.HLP"
        VERBATIM)
    # Both languages' scenarios lie side by side, each under its title.
    file(GLOB scenarios CONFIGURE_DEPENDS "${CMAKE_SOURCE_DIR}/data/scenarios/*/*.scn")
    set(staged_scenarios "")
    foreach(scenario IN LISTS scenarios)
        cmake_path(GET scenario FILENAME name)
        set(staged "${TORVANE_GAME_DIR}/Scenarios/${name}")
        add_custom_command(OUTPUT "${staged}"
            COMMAND ${CMAKE_COMMAND} -E make_directory "${TORVANE_GAME_DIR}/Scenarios"
            COMMAND ${CMAKE_COMMAND} -E copy "${scenario}" "${staged}"
            DEPENDS "${scenario}"
            COMMENT "Staging ${name}"
            VERBATIM)
        list(APPEND staged_scenarios "${staged}")
    endforeach()
    add_custom_target(game ALL DEPENDS "${tables}" "${catalogue}" "${help}" ${staged_scenarios})
    add_dependencies(game TorvaneScenarioEditor TorvaneScenarioEditor-English)
endfunction()
