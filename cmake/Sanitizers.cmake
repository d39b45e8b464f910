# SATWECVT_SANITIZE holds what -fsanitize takes. The first finding ends the program: a report that nobody reads is none.
if(SATWECVT_SANITIZE)
    add_compile_options(-fsanitize=${SATWECVT_SANITIZE} -fno-sanitize-recover=all -fno-omit-frame-pointer)
    add_link_options(-fsanitize=${SATWECVT_SANITIZE})
endif()
