# Installs the build into a scratch folder and checks its desktop file and
# metainfo there, as a packager's tools would.
set(root ${BUILD}/install-check)
file(REMOVE_RECURSE ${root})
execute_process(COMMAND ${CMAKE_COMMAND} --install ${BUILD} --prefix ${root}/usr COMMAND_ERROR_IS_FATAL ANY
                OUTPUT_QUIET)
foreach(file bin/quieton share/icons/hicolor/scalable/apps/${APP_ID}.svg)
    if(NOT EXISTS ${root}/usr/${file})
        message(FATAL_ERROR "not installed: ${file}")
    endif()
endforeach()
execute_process(COMMAND desktop-file-validate ${root}/usr/share/applications/${APP_ID}.desktop
                COMMAND_ERROR_IS_FATAL ANY)
execute_process(COMMAND appstreamcli validate --no-net --explain ${root}/usr/share/metainfo/${APP_ID}.metainfo.xml
                COMMAND_ERROR_IS_FATAL ANY)
file(REMOVE_RECURSE ${root})
