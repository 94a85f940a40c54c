# What every target of the project compiles with.
add_library(tessaro_options INTERFACE)
target_compile_features(tessaro_options INTERFACE cxx_std_20)
target_compile_options(tessaro_options INTERFACE -Wall -Wextra -Wpedantic -Wconversion)
if(WIN32)
    # The system's calls take UTF-16, and its headers no names of ours.
    target_compile_definitions(tessaro_options INTERFACE UNICODE NOMINMAX WIN32_LEAN_AND_MEAN
        _WIN32_WINNT=0x0A00)
endif()
# Not for those who only build the program: the next compiler warns of more.
if(TESSARO_WERROR)
    target_compile_options(tessaro_options INTERFACE -Werror)
endif()

if(TESSARO_SANITIZE)
    target_compile_options(tessaro_options INTERFACE
        -fsanitize=${TESSARO_SANITIZE} -fno-sanitize-recover=all -fno-omit-frame-pointer)
    target_compile_definitions(tessaro_options INTERFACE _GLIBCXX_ASSERTIONS)
    target_link_options(tessaro_options INTERFACE -fsanitize=${TESSARO_SANITIZE})
endif()
