# The host's page resources: our own scripts and style sheets, and the page libraries that npm
# installs into host/web/node_modules (tools/setup.sh runs `npm ci`). The libraries are embedded
# from there at build time, never copied into the repository.
set(HOST_WEB_DIR ${CMAKE_CURRENT_LIST_DIR})
set(HOST_WEB_MODULES ${HOST_WEB_DIR}/node_modules)
if(NOT EXISTS ${HOST_WEB_MODULES}/w2ui/w2ui-1.4.3.js)
    find_program(HOST_NPM npm)
    if(HOST_NPM)
        message(STATUS "host/web: node_modules missing, running npm ci")
        execute_process(COMMAND ${HOST_NPM} ci --no-audit --no-fund
            WORKING_DIRECTORY ${HOST_WEB_DIR} RESULT_VARIABLE HOST_NPM_RESULT)
    endif()
endif()

# qrc path -> file under node_modules
set(HOST_WEB_LIBRARY_FILES
    "jquery-ui/jquery.min.js=jquery/dist/jquery.min.js"
    "jquery-ui/jquery-ui.min.js=jquery-ui/dist/jquery-ui.min.js"
    "jquery-ui/w2ui-1.4.3_tarvix-4.0.js=w2ui/w2ui-1.4.3.js"
    "jquery-ui.css=jquery-ui/dist/themes/base/jquery-ui.css"
    "w2ui-1.4.3.css=w2ui/w2ui-1.4.3.css")
file(GLOB HOST_WEB_THEME_IMAGES RELATIVE ${HOST_WEB_MODULES}/jquery-ui/dist/themes/base
    ${HOST_WEB_MODULES}/jquery-ui/dist/themes/base/images/*.png)
foreach(image ${HOST_WEB_THEME_IMAGES})
    list(APPEND HOST_WEB_LIBRARY_FILES "${image}=jquery-ui/dist/themes/base/${image}")
endforeach()

set(HOST_WEB_LIBRARIES "")
foreach(entry ${HOST_WEB_LIBRARY_FILES})
    string(REPLACE "=" ";" pair "${entry}")
    list(GET pair 0 alias)
    list(GET pair 1 file)
    if(EXISTS ${HOST_WEB_MODULES}/${file})
        string(APPEND HOST_WEB_LIBRARIES
            "    <file alias=\"${alias}\">${HOST_WEB_MODULES}/${file}</file>\n")
    else()
        message(WARNING "host/web: ${file} missing; run `npm ci` in host/web (tools/setup.sh)")
    endif()
endforeach()

configure_file(${HOST_WEB_DIR}/tarvixweb.qrc.in ${CMAKE_CURRENT_BINARY_DIR}/tarvixweb.qrc @ONLY)
target_sources(tarvixhost PRIVATE ${CMAKE_CURRENT_BINARY_DIR}/tarvixweb.qrc)
