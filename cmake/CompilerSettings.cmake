# Language, warnings and code generation, the same for every target of ours.

set(CMAKE_CXX_STANDARD 20)
set(CMAKE_CXX_STANDARD_REQUIRED ON)
set(CMAKE_CXX_EXTENSIONS OFF)
set(CMAKE_C_STANDARD 11)
set(CMAKE_C_EXTENSIONS OFF)
set(CMAKE_POSITION_INDEPENDENT_CODE ON)
set(CMAKE_CXX_VISIBILITY_PRESET hidden)
set(CMAKE_C_VISIBILITY_PRESET hidden)
set(CMAKE_VISIBILITY_INLINES_HIDDEN ON)
set(CMAKE_EXPORT_COMPILE_COMMANDS ON)

if(NOT CMAKE_BUILD_TYPE)
    set(CMAKE_BUILD_TYPE Release CACHE STRING "Release, RelWithDebInfo or Debug" FORCE)
endif()
foreach(language C CXX)
    set(CMAKE_${language}_FLAGS_RELEASE "-O2 -DNDEBUG")
    set(CMAKE_${language}_FLAGS_RELWITHDEBINFO "-O1 -g1")
endforeach()

# No path of the machine that builds ends up in what is built for use (what the sanitizers report is
# easier to find with it). ccache makes paths relative, so that it knows a file again in another clone.
if(NOT ZENT_SANITIZE)
    file(RELATIVE_PATH up ${CMAKE_BINARY_DIR} ${CMAKE_SOURCE_DIR})
    add_compile_options(-ffile-prefix-map=${CMAKE_SOURCE_DIR}/= -ffile-prefix-map=${up}=)
endif()
find_program(CCACHE ccache)
if(CCACHE)
    set(CMAKE_C_COMPILER_LAUNCHER ${CMAKE_SOURCE_DIR}/tools/compiler-cache)
    set(CMAKE_CXX_COMPILER_LAUNCHER ${CMAKE_SOURCE_DIR}/tools/compiler-cache)
endif()

# Precompiled headers halve the build. Builds with sanitizers go without (CMAKE_DISABLE_PRECOMPILE_HEADERS),
# so that a source that lacks an include is found.
if(CMAKE_CXX_COMPILER_ID STREQUAL GNU)
    add_compile_options($<$<COMPILE_LANGUAGE:CXX>:-fpch-preprocess>) # which ccache asks for
endif()

if(ZENT_SANITIZE)
    add_compile_options(-fsanitize=${ZENT_SANITIZE} -fno-sanitize-recover=all -fno-omit-frame-pointer)
    add_link_options(-fsanitize=${ZENT_SANITIZE})
endif()

if(WIN32)
    add_compile_definitions(UNICODE _UNICODE WIN32_LEAN_AND_MEAN NOMINMAX)
    # The library and the program stand alone: nothing of the compiler's is to be shipped with them.
    add_link_options(-static -static-libgcc -static-libstdc++ -s -Wl,--no-insert-timestamp)
    if(CMAKE_SYSTEM_PROCESSOR STREQUAL i686)
        add_compile_definitions(_WIN32_WINNT=0x0501 WINVER=0x0501)
    endif()
endif()

# Linked by what we write, not by what we only build (GoogleTest).
add_library(zent_warnings INTERFACE)
if(ZENT_SANITIZE AND CMAKE_CXX_COMPILER_ID STREQUAL GNU)
    return() # what g++ adds for the sanitizers makes it warn of faults that aren't there
endif()
target_compile_options(zent_warnings INTERFACE
    -Wall -Wextra -Wpedantic -Werror
    -Wshadow -Wconversion -Wsign-conversion -Wcast-align -Wcast-qual -Wformat=2 -Wundef
    -Wimplicit-fallthrough -Wdouble-promotion
    $<$<COMPILE_LANGUAGE:CXX>:-Wold-style-cast -Wnon-virtual-dtor -Woverloaded-virtual
        -Wextra-semi>
    $<$<AND:$<COMPILE_LANGUAGE:CXX>,$<CXX_COMPILER_ID:GNU>>:-Wsuggest-override -Wduplicated-cond
        -Wduplicated-branches -Wlogical-op>)
