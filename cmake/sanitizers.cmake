# Sanitizers apply to the whole build, so that no object without them slips in.
if(TORVANE_SANITIZE)
    add_compile_options(-fsanitize=${TORVANE_SANITIZE} -fno-omit-frame-pointer -fno-sanitize-recover=all)
    add_link_options(-fsanitize=${TORVANE_SANITIZE})
endif()
