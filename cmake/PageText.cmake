# The page of `view` as a C++ source, made from page/ by node: add_page_text(TARGET) gives it to a target. What page/
# needs comes from npm once, into the source tree, for all builds of it.
find_program(SATWECVT_NODE node REQUIRED)
find_program(SATWECVT_NPM npm REQUIRED)
set(page_folder "${PROJECT_SOURCE_DIR}/page")
set(page_modules "${page_folder}/node_modules/.package-lock.json")
file(GLOB_RECURSE page_sources CONFIGURE_DEPENDS "${page_folder}/src/*.ts" "${page_folder}/css/*.css")

function(add_page_text target)
    add_custom_command(OUTPUT "${page_modules}"
        COMMAND "${SATWECVT_NPM}" ci --no-audit --no-fund --loglevel=error
        DEPENDS "${page_folder}/package.json" "${page_folder}/package-lock.json" "${page_folder}/.npmrc"
        WORKING_DIRECTORY "${page_folder}"
        COMMENT "Fetching what the page is made of" VERBATIM)
    set(source "${CMAKE_CURRENT_BINARY_DIR}/PageText.cpp")
    add_custom_command(OUTPUT "${source}"
        COMMAND "${SATWECVT_NODE}" build.mjs --cpp "${source}"
        DEPENDS ${page_sources} "${page_modules}" "${page_folder}/page.html" "${page_folder}/page.css"
            "${page_folder}/build.mjs" "${page_folder}/EmbeddedText.mjs" "${page_folder}/tsconfig.json"
        WORKING_DIRECTORY "${page_folder}"
        COMMENT "Building the page" VERBATIM)
    target_sources(${target} PRIVATE "${source}")
endfunction()
