# tessaro_folder(FORMS a b): the sources of the current folder and of those in it. The ones named as
# forms (a.cpp) belong to the forms library, all others to the logic.
# tessaro_folder(ONLY_FORMS): all of them belong to the forms library.
# EXCEPT a b: without those in these folders, which lie in the current one.
function(tessaro_folder)
    cmake_parse_arguments(PARSE_ARGV 0 ARG "ONLY_FORMS" "" "FORMS;EXCEPT")
    file(GLOB_RECURSE logic CONFIGURE_DEPENDS *.cpp)
    foreach(folder ${ARG_EXCEPT})
        list(FILTER logic EXCLUDE REGEX "^${CMAKE_CURRENT_SOURCE_DIR}/${folder}/")
    endforeach()
    set(forms ${ARG_FORMS})
    list(TRANSFORM forms REPLACE ".+" "${CMAKE_CURRENT_SOURCE_DIR}/\\0.cpp")
    if(ARG_ONLY_FORMS)
        set(forms ${logic})
    endif()
    list(REMOVE_ITEM logic ${forms})
    target_sources(tessaro_logic PRIVATE ${logic})
    if(TESSARO_FORMS)
        target_sources(tessaro_forms PRIVATE ${forms})
    endif()
endfunction()
