# tessaro_folder(FORMS a b): the sources of the current folder. Those named as forms (a.cpp with
# a.ui) belong to the forms library, all others to the logic.
function(tessaro_folder)
    cmake_parse_arguments(ARG "" "" "FORMS" ${ARGN})
    file(GLOB sources CONFIGURE_DEPENDS *.cpp)
    foreach(form ${ARG_FORMS})
        list(FILTER sources EXCLUDE REGEX "/${form}\\.cpp$")
        if(TESSARO_FORMS)
            target_sources(tessaro_forms PRIVATE ${form}.cpp ${form}.h)
        endif()
    endforeach()
    target_sources(tessaro_logic PRIVATE ${sources})
endfunction()
