# The version stands in CMakeLists.txt alone. What else tells it takes it from here: the program, the
# manual page, the name under which the library is linked, and the version resources of Windows files.
set(ZENT_GENERATED ${CMAKE_BINARY_DIR}/generated)
configure_file(cmake/zent_version.h.in ${ZENT_GENERATED}/zent_version.h @ONLY)

# Writes the script of a version resource of a DLL or a program.
function(zent_write_version_resource script ZENT_FILE ZENT_DESCRIPTION)
    cmake_path(GET ZENT_FILE STEM ZENT_NAME)
    if(ZENT_FILE MATCHES "[.]dll$")
        set(ZENT_FILE_TYPE 2) # dynamic library
    else()
        set(ZENT_FILE_TYPE 1) # program
    endif()
    configure_file(${CMAKE_SOURCE_DIR}/cmake/version.rc.in ${script} @ONLY)
endfunction()

# Gives a target for Windows such a resource.
function(zent_version_resource target file description)
    set(script ${ZENT_GENERATED}/${target}-version.rc)
    zent_write_version_resource(${script} ${file} ${description})
    target_sources(${target} PRIVATE ${script})
    set_source_files_properties(${script} PROPERTIES INCLUDE_DIRECTORIES ${ZENT_GENERATED})
endfunction()
if(WIN32)
    enable_language(RC)
endif()
