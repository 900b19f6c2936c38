# How every target of the project is compiled and linked: warnings, symbol
# visibility, and the instrumented builds chosen by the KIVTAMBRO_SANITIZE,
# KIVTAMBRO_FUZZ and KIVTAMBRO_COVERAGE options (see CMakePresets.json).

set(CMAKE_CXX_VISIBILITY_PRESET hidden)
set(CMAKE_VISIBILITY_INLINES_HIDDEN ON)
set(CMAKE_POSITION_INDEPENDENT_CODE ON)
if(NOT CMAKE_BUILD_TYPE AND NOT CMAKE_CONFIGURATION_TYPES)
    set(CMAKE_BUILD_TYPE RelWithDebInfo)
endif()

add_compile_options(-Wall -Wextra)

if(KIVTAMBRO_SANITIZE)
    add_compile_options(-fsanitize=address,undefined -fno-sanitize-recover=all -fno-omit-frame-pointer)
    add_link_options(-fsanitize=address,undefined)
endif()

if(KIVTAMBRO_FUZZ)
    # The library's own code, not only the fuzz targets, must report its
    # coverage to the fuzzer, or the fuzzer cannot find its way into it.
    add_compile_options(-fsanitize=fuzzer-no-link,address,undefined -fno-sanitize-recover=undefined)
    add_link_options(-fsanitize=address,undefined)
endif()

if(KIVTAMBRO_COVERAGE)
    add_compile_options(--coverage -O0)
    add_link_options(--coverage)
endif()

# Shared libraries name every library they use. Not so under clang's
# sanitizers, whose runtime the program brings.
set(KIVTAMBRO_NO_UNDEFINED $<IF:$<BOOL:${KIVTAMBRO_FUZZ}>,,-Wl$<COMMA>--no-undefined>)
