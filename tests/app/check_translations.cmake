# Every text of the app is translated into every language: each of TS_DIR's
# quieton_*.ts files, brought up to date with the sources (SOURCES_LIST, as
# update_translations reads them) in a copy under WORK_DIR, must leave
# lrelease with nothing unfinished and nothing untranslated.
file(REMOVE_RECURSE ${WORK_DIR})
file(GLOB ts_files ${TS_DIR}/quieton_*.ts)
if(NOT ts_files)
    message(FATAL_ERROR "No translations in ${TS_DIR}")
endif()
set(failures "")
foreach(ts IN LISTS ts_files)
    get_filename_component(name ${ts} NAME)
    set(copy ${WORK_DIR}/${name})
    configure_file(${ts} ${copy} COPYONLY)
    execute_process(COMMAND ${LUPDATE} @${SOURCES_LIST} -ts ${copy} OUTPUT_QUIET COMMAND_ERROR_IS_FATAL ANY)
    execute_process(COMMAND ${LRELEASE} ${copy} -qm ${copy}.qm OUTPUT_VARIABLE summary COMMAND_ERROR_IS_FATAL ANY)
    if(summary MATCHES " 0 unfinished\\)" AND NOT summary MATCHES "untranslated")
        continue()
    endif()
    # The texts still waiting, one a line ("&quot;" and the like kept).
    file(READ ${copy} text)
    string(ASCII 31 unit)
    string(REPLACE ";" "${unit}" text "${text}")
    string(REGEX MATCHALL "<source>[^<]*</source>([^<]|<[a-z]*comment>[^<]*</[a-z]*comment>)*<translation type=\"unfinished\""
           missing "${text}")
    list(TRANSFORM missing REPLACE "^<source>([^<]*)</source>.*" "    \\1")
    list(JOIN missing "\n" missing)
    string(REPLACE "${unit}" ";" missing "${missing}")
    string(APPEND failures "${name} lacks translations of:\n${missing}\n")
endforeach()
if(failures)
    message(FATAL_ERROR "${failures}Run `cmake --build build --target update_translations`, translate these texts "
                        "in src/i18n (Qt Linguist, or edit each <translation>), and build again.")
endif()
