# For what users get: the usual flags of distributions, and the same bytes wherever it was built.
include(CheckPIESupported)
check_pie_supported()
set(CMAKE_POSITION_INDEPENDENT_CODE ON)
add_compile_options(-fstack-protector-strong -fstack-clash-protection
    -U_FORTIFY_SOURCE -D_FORTIFY_SOURCE=2 "-ffile-prefix-map=${CMAKE_SOURCE_DIR}=.")
add_link_options(-Wl,-z,relro -Wl,-z,now)
if(CMAKE_SYSTEM_PROCESSOR STREQUAL "x86_64")
    add_compile_options(-fcf-protection)
endif()
