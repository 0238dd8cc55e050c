# Warnings of every target of ours. Warnings are errors where TORVANE_WERROR says so, as the presets do.
add_library(torvane_warnings INTERFACE)
target_compile_options(torvane_warnings INTERFACE
    -Wall -Wextra -Wpedantic -Wconversion -Wshadow -Wold-style-cast
    $<$<BOOL:${TORVANE_WERROR}>:-Werror>)
target_compile_definitions(torvane_warnings INTERFACE
    QT_NO_CAST_TO_ASCII QT_NO_URL_CAST_FROM_STRING QT_NO_FOREACH QT_NO_KEYWORDS
    QT_DISABLE_DEPRECATED_BEFORE=0x060400)
