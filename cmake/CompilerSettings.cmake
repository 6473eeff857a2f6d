# Settings shared by every target: language levels, warnings, visibility, build types.

set(CMAKE_CXX_STANDARD 20)
set(CMAKE_CXX_STANDARD_REQUIRED ON)
set(CMAKE_CXX_EXTENSIONS OFF)
set(CMAKE_POSITION_INDEPENDENT_CODE ON)
set(CMAKE_CXX_VISIBILITY_PRESET hidden)
set(CMAKE_VISIBILITY_INLINES_HIDDEN ON)

# The everyday build compiles fast; what works on every pixel is optimized in it all the same (ue_optimize).
set(CMAKE_CXX_FLAGS_DEV "")
set(CMAKE_CXX_FLAGS_RELEASE "-O3")

option(TINTMILL_SANITIZE "Build with the address and undefined-behaviour sanitizers" OFF)
option(TINTMILL_FUZZ "Build for the fuzz targets of Tests/Fuzz, with clang" OFF)

add_compile_options(-Wall -Wextra -Wshadow -Wundef -Wsuggest-override -Werror)
if(CMAKE_CXX_COMPILER_ID STREQUAL "GNU")
    # Objects are constructed in memory that was zeroed for them and count on it, as the engine's do: what a constructor leaves out
    # stays zero. An optimizer that takes an object's life to begin with its constructor would drop the zeros.
    set(UE_OBJECT_OPTIONS -fno-lifetime-dse)
    add_compile_options($<$<NOT:$<CONFIG:Dev>>:${UE_OBJECT_OPTIONS}>)
    # Once it optimizes, this compiler sees overlaps in the standard library's strings and negative counts in arrays that never are.
    add_compile_options($<$<NOT:$<CONFIG:Dev>>:-Wno-restrict> $<$<NOT:$<CONFIG:Dev>>:-Wno-stringop-overflow>)
    # Unique symbols would keep a module's library mapped after it is unloaded.
    add_compile_options(-fno-gnu-unique)
endif()
if(TINTMILL_SANITIZE)
    # Generated code sets bits in memory that is no object yet, as the engine's does; the check of virtual tables would end there.
    add_compile_options(-fsanitize=address,undefined -fno-sanitize=vptr -fno-sanitize-recover=undefined -fno-omit-frame-pointer)
    add_link_options(-fsanitize=address,undefined)
endif()

if(TINTMILL_FUZZ)
    # As in the engine, flags are sums of enumerators, generated code calls functions through pointers to what they return a base of,
    # and ANY_PACKAGE is no address.
    add_compile_options(-fsanitize=fuzzer-no-link,address,undefined -fno-sanitize=vptr,enum,function,alignment -fno-sanitize-recover=undefined)
    add_link_options(-fsanitize=address,undefined)
endif()

find_program(CCACHE_PROGRAM ccache)
if(CCACHE_PROGRAM)
    set(CMAKE_CXX_COMPILER_LAUNCHER ${CCACHE_PROGRAM})
endif()

# The build tree is laid out as an engine installation, so that programs find plug-ins relative to themselves.
if(WIN32)
    set(UE_PLATFORM_DIR Win64)
    set(CMAKE_SHARED_LIBRARY_PREFIX "")
else()
    set(UE_PLATFORM_DIR Linux)
endif()
set(UE_ENGINE_DIR ${CMAKE_BINARY_DIR}/Engine)
set(UE_BINARIES_DIR ${UE_ENGINE_DIR}/Binaries/${UE_PLATFORM_DIR})
set(UE_GENERATED_DIR ${UE_ENGINE_DIR}/Intermediate/Inc)
set(CMAKE_RUNTIME_OUTPUT_DIRECTORY ${UE_BINARIES_DIR})

# ue_optimize(SOURCE...): full optimization in every build type, for sources that work on every pixel. Call it in the folder of
# the target.
function(ue_optimize)
    set_source_files_properties(${ARGN} PROPERTIES COMPILE_OPTIONS "-O3;${UE_OBJECT_OPTIONS}")
endfunction()
