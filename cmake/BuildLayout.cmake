# The build tree is laid out like the install prefix: every installed program
# and library is built at its install destination relative to the build
# folder, and carries its install run path (relative to itself, $ORIGIN) from
# the start. A run path rewritten at install would need the build tree's own
# padded with empty entries, which the loader reads as the current folder: a
# library planted where a program is started would be loaded.

# kivtambro_place(TARGET DESTINATION [FINDS_LIBRARIES]): DESTINATION as given
# to install(); FINDS_LIBRARIES when the target loads libraries of the project,
# which it then looks for in the library folder, else it has no run path.
function(kivtambro_place target destination)
    cmake_parse_arguments(PARSE_ARGV 2 arg "FINDS_LIBRARIES" "" "")
    get_target_property(type ${target} TYPE)
    if(type STREQUAL "EXECUTABLE")
        set(output RUNTIME_OUTPUT_DIRECTORY)
    else()
        set(output LIBRARY_OUTPUT_DIRECTORY)
    endif()
    set(run_path "")
    if(arg_FINDS_LIBRARIES)
        file(RELATIVE_PATH to_libdir /prefix/${destination} /prefix/${CMAKE_INSTALL_LIBDIR})
        set(run_path "$ORIGIN")
        if(to_libdir)
            set(run_path "$ORIGIN/${to_libdir}")
        endif()
    endif()
    set_target_properties(${target} PROPERTIES
        ${output} ${PROJECT_BINARY_DIR}/${destination}
        BUILD_WITH_INSTALL_RPATH ON
        INSTALL_RPATH "${run_path}")
endfunction()
