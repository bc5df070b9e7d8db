# What the library is built on: Debian's packages; for Windows the cross-built ones.

if(WIN32)
    find_library(ZLIB_STATIC NAMES libz.a REQUIRED)
    add_library(ZLIB::ZLIB STATIC IMPORTED)
    set_target_properties(ZLIB::ZLIB PROPERTIES IMPORTED_LOCATION ${ZLIB_STATIC})

    # Builds it at first need, and tells where it stands.
    execute_process(
        COMMAND ${CMAKE_SOURCE_DIR}/tools/build-xerces ${CMAKE_SYSTEM_PROCESSOR}
        OUTPUT_VARIABLE xerces OUTPUT_STRIP_TRAILING_WHITESPACE COMMAND_ERROR_IS_FATAL ANY)
    add_library(XercesC::XercesC STATIC IMPORTED)
    set_target_properties(XercesC::XercesC PROPERTIES
        IMPORTED_LOCATION ${xerces}/lib/libxerces-c.a
        INTERFACE_INCLUDE_DIRECTORIES ${xerces}/include
        INTERFACE_COMPILE_OPTIONS -ffile-prefix-map=${xerces}/include/=)
else()
    find_package(ZLIB REQUIRED)
    find_package(XercesC 3.2 REQUIRED)
    find_package(SQLite3 3.37 REQUIRED) # STRICT tables
    find_package(Qt6 REQUIRED COMPONENTS Widgets)
    find_library(XCB xcb REQUIRED)
    add_library(XCB::XCB UNKNOWN IMPORTED)
    set_target_properties(XCB::XCB PROPERTIES IMPORTED_LOCATION ${XCB})
endif()

# CLI11 is headers only. They are the same for each target, but a cross-compiler must not see the
# rest of the folder that they lie in.
find_path(CLI11_HEADERS CLI/CLI.hpp HINTS /usr/include NO_CMAKE_FIND_ROOT_PATH REQUIRED)
add_library(CLI11::CLI11 INTERFACE IMPORTED)
if(CMAKE_CROSSCOMPILING)
    file(MAKE_DIRECTORY ${CMAKE_BINARY_DIR}/include)
    file(CREATE_LINK ${CLI11_HEADERS}/CLI ${CMAKE_BINARY_DIR}/include/CLI SYMBOLIC)
    set_target_properties(CLI11::CLI11 PROPERTIES
        INTERFACE_INCLUDE_DIRECTORIES ${CMAKE_BINARY_DIR}/include)
else()
    set_target_properties(CLI11::CLI11 PROPERTIES INTERFACE_INCLUDE_DIRECTORIES ${CLI11_HEADERS})
endif()
