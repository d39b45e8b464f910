# Fails unless the man page and the completions lie where man and the shells look for them.
# To be run as: cmake -DPREFIX=... -DMANUAL=... -P CheckManual.cmake
cmake_minimum_required(VERSION 3.25)

function(expect_installed name path)
    execute_process(COMMAND "${CMAKE_COMMAND}" -E compare_files "${MANUAL}/${name}" "${PREFIX}/share/${path}"
        COMMAND_ERROR_IS_FATAL ANY)
endfunction()

expect_installed(satwecvt.1 man/man1/satwecvt.1)
expect_installed(satwecvt.bash bash-completion/completions/satwecvt)
expect_installed(_satwecvt zsh/site-functions/_satwecvt)
expect_installed(satwecvt.fish fish/vendor_completions.d/satwecvt.fish)
