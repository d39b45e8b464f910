# The pages, made from page/ by node.
#
#   add_page_text(TARGET)           gives a target the page of `view` as a C++ source
#   add_converter_page(FILE MODULE) writes the page that holds the converter, whose module is the target MODULE
#
# What page/ needs comes from npm once, into the source tree, for all builds of it.
find_program(SATWECVT_NODE node REQUIRED)
find_program(SATWECVT_NPM NAMES npm.cmd npm REQUIRED)
set(page_folder "${PROJECT_SOURCE_DIR}/page")
set(page_modules "${page_folder}/node_modules/.package-lock.json")
file(GLOB_RECURSE page_sources CONFIGURE_DEPENDS "${page_folder}/src/*.ts" "${page_folder}/css/*.css")
list(APPEND page_sources "${page_modules}" "${page_folder}/build.mjs" "${page_folder}/EmbeddedText.mjs"
    "${page_folder}/tsconfig.json")

function(fetch_page_modules)
    add_custom_command(OUTPUT "${page_modules}"
        COMMAND "${SATWECVT_NPM}" ci --no-audit --no-fund --loglevel=error
        DEPENDS "${page_folder}/package.json" "${page_folder}/package-lock.json" "${page_folder}/.npmrc"
        WORKING_DIRECTORY "${page_folder}"
        COMMENT "Fetching what the page is made of" VERBATIM)
endfunction()

function(add_page_text target)
    fetch_page_modules()
    set(source "${CMAKE_CURRENT_BINARY_DIR}/PageText.cpp")
    add_custom_command(OUTPUT "${source}"
        COMMAND "${SATWECVT_NODE}" build.mjs --cpp "${source}"
        DEPENDS ${page_sources} "${page_folder}/page.html" "${page_folder}/page.css"
        WORKING_DIRECTORY "${page_folder}"
        COMMENT "Building the page" VERBATIM)
    target_sources(${target} PRIVATE "${source}")
endfunction()

function(add_converter_page file module)
    fetch_page_modules()
    add_custom_command(OUTPUT "${file}"
        COMMAND "${SATWECVT_NODE}" build.mjs --converter "${file}" --module "$<TARGET_FILE_DIR:${module}>"
        DEPENDS ${page_sources} ${module} "${page_folder}/converter.html" "${page_folder}/converter.css"
            "${page_folder}/module-licences.txt"
        WORKING_DIRECTORY "${page_folder}"
        COMMENT "Building the page that converts" VERBATIM)
    add_custom_target(converter_page ALL DEPENDS "${file}")
endfunction()
