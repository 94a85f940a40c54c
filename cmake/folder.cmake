# tessaro_folder(FORMS a b): the sources of the current folder. Those named as forms (a.cpp, with
# a.ui if there is one) belong to the forms library, all others to the logic.
function(tessaro_folder)
    cmake_parse_arguments(ARG "" "" "FORMS" ${ARGN})
    file(GLOB sources CONFIGURE_DEPENDS *.cpp)
    foreach(form ${ARG_FORMS})
        list(FILTER sources EXCLUDE REGEX "/${form}\\.cpp$")
        if(TESSARO_FORMS)
            target_sources(tessaro_forms PRIVATE ${form}.cpp ${form}.h)
            # Named as a source, or a change of it alone would come into the program one build late.
            if(EXISTS ${CMAKE_CURRENT_SOURCE_DIR}/${form}.ui)
                target_sources(tessaro_forms PRIVATE ${form}.ui)
            endif()
        endif()
    endforeach()
    target_sources(tessaro_logic PRIVATE ${sources})
endfunction()
