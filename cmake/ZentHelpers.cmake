# Sources are found by pattern, so that a new file needs no change here.
function(zent_glob out)
    file(GLOB_RECURSE found CONFIGURE_DEPENDS ${ARGN})
    if(NOT found)
        message(FATAL_ERROR "There is none of ${ARGN}")
    endif()
    set(${out} ${found} PARENT_SCOPE)
endfunction()
