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

# ccache passes precompiled headers by, unless told to take them for what they seem.
if(CMAKE_CXX_COMPILER_LAUNCHER MATCHES "ccache$")
    list(PREPEND CMAKE_CXX_COMPILER_LAUNCHER env CCACHE_SLOPPINESS=pch_defines,time_macros)
    add_compile_options("$<IF:$<CXX_COMPILER_ID:Clang>,SHELL:-Xclang -fno-pch-timestamp,-fpch-preprocess>")
endif()

# tessaro_sanitize(TARGET): lets the sanitizers watch a library of ours. The tests are left alone:
# they take longest to compile, and a fault of the program's shows from inside it.
function(tessaro_sanitize target)
    if(TESSARO_SANITIZE)
        target_compile_options(${target} PRIVATE
            -fsanitize=${TESSARO_SANITIZE} -fno-sanitize-recover=all -fno-omit-frame-pointer)
        target_compile_definitions(${target} PUBLIC _GLIBCXX_ASSERTIONS)
        target_link_options(${target} PUBLIC -fsanitize=${TESSARO_SANITIZE})
    endif()
endfunction()
