# Warnings, sanitizers and the fuzzer's coverage, the same for every target.
add_compile_options(-Wall -Wextra -Wpedantic -Wshadow -Wconversion -Werror)
if(TAVMOOR_SANITIZE)
    add_compile_options(-fsanitize=${TAVMOOR_SANITIZE} -fno-sanitize-recover=all
                        -fno-omit-frame-pointer)
    add_link_options(-fsanitize=${TAVMOOR_SANITIZE})
endif()
if(TAVMOOR_FUZZ)
    add_compile_options(-fsanitize=fuzzer-no-link)
endif()
if(WIN32)
    add_compile_definitions(UNICODE _UNICODE NOMINMAX WIN32_LEAN_AND_MEAN _WIN32_WINNT=0x0601)
    add_link_options($<$<CONFIG:MinSizeRel>:-s>)
endif()
