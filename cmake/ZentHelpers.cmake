# Sources are found by pattern, so that a new file needs no change here. A folder that has no source
# yet gives an empty translation unit, which CMake's targets need.
function(zent_glob out)
    file(GLOB_RECURSE found CONFIGURE_DEPENDS ${ARGN})
    set(${out} ${found} PARENT_SCOPE)
endfunction()

function(zent_or_empty list)
    if(NOT ${list})
        set(empty ${CMAKE_BINARY_DIR}/empty.cpp)
        file(CONFIGURE OUTPUT ${empty} CONTENT "")
        set(${list} ${empty} PARENT_SCOPE)
    endif()
endfunction()
