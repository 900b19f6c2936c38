# Manual pages made by help2man from a program's own --help, so that the page
# and the help cannot disagree; an include file per program adds the sections
# the help does not hold. Without help2man no page is made, silently.
#
# Run as a script (cmake -P) by the build, this file makes one page.

if(CMAKE_SCRIPT_MODE_FILE)
    # HELP2MAN, PROGRAM, NAME, INCLUDE, VERSION, SOURCES (the folder whose
    # last commit dates the page), PAGE; ENVIRONMENT: VAR=VALUE items;
    # REPLACE: pairs of a text of the help and what the page says instead.
    foreach(setting IN LISTS ENVIRONMENT)
        string(REGEX MATCH "^([^=]+)=(.*)$" setting "${setting}")
        set(ENV{${CMAKE_MATCH_1}} "${CMAKE_MATCH_2}")
    endforeach()
    # The same page from the same sources: dated as the builder says, else by
    # the last change of the program's folder.
    if(NOT DEFINED ENV{SOURCE_DATE_EPOCH})
        execute_process(COMMAND git log -1 --format=%ct -- .
            WORKING_DIRECTORY "${SOURCES}" OUTPUT_VARIABLE epoch OUTPUT_STRIP_TRAILING_WHITESPACE ERROR_QUIET)
        if(epoch)
            set(ENV{SOURCE_DATE_EPOCH} "${epoch}")
        endif()
    endif()
    execute_process(
        COMMAND "${HELP2MAN}" --no-info --section=1 "--version-string=${VERSION}" "--name=${NAME}"
            "--include=${INCLUDE}" "${PROGRAM}"
        OUTPUT_VARIABLE page RESULT_VARIABLE failed)
    if(failed)
        message(FATAL_ERROR "help2man could not make ${PAGE}")
    endif()
    # Paths, which help2man sets in italics, are kept whole, and lines are
    # left ragged rather than stretched around them.
    string(REPLACE "\\fI\\," "\\fI\\,\\%" page "${page}")
    string(REGEX REPLACE "(\n\\.TH [^\n]*\n)" "\\1.ad l\n" page "${page}")
    while(REPLACE)
        list(POP_FRONT REPLACE text with)
        # As the page writes them: help2man escapes every hyphen.
        string(REPLACE "-" "\\-" text "${text}")
        string(REPLACE "-" "\\-" with "${with}")
        string(REPLACE "${text}" "${with}" page "${page}")
    endwhile()
    file(WRITE "${PAGE}" "${page}")
    return()
endif()

find_program(HELP2MAN_EXECUTABLE help2man)
mark_as_advanced(HELP2MAN_EXECUTABLE)

# kivtambro_man_page(PROGRAM NAME <summary> INCLUDE <file> COMPONENT <component>
#                    [ENVIRONMENT <VAR=VALUE>...] [REPLACE <text> <with>]...)
# Makes PROGRAM.1 in the build's manual folder, part of all, and installs it
# in COMPONENT. The include file may use @VARIABLES@ of CMake. ENVIRONMENT is
# the program's when help2man runs it; REPLACE puts words in the page where the
# help shows what holds for this build alone, such as a path of the build.
function(kivtambro_man_page program)
    if(NOT HELP2MAN_EXECUTABLE)
        return()
    endif()
    cmake_parse_arguments(PARSE_ARGV 1 arg "" "NAME;INCLUDE;COMPONENT" "ENVIRONMENT;REPLACE")
    set(page ${PROJECT_BINARY_DIR}/${CMAKE_INSTALL_MANDIR}/man1/${program}.1)
    set(include ${CMAKE_CURRENT_BINARY_DIR}/${program}.h2m)
    configure_file(${arg_INCLUDE} ${include} @ONLY)
    add_custom_command(OUTPUT ${page}
        COMMAND ${CMAKE_COMMAND} "-DHELP2MAN=${HELP2MAN_EXECUTABLE}" "-DPROGRAM=$<TARGET_FILE:${program}>"
            "-DNAME=${arg_NAME}" "-DINCLUDE=${include}" "-DVERSION=${PROJECT_VERSION}" "-DSOURCES=${CMAKE_CURRENT_SOURCE_DIR}"
            "-DPAGE=${page}" "-DENVIRONMENT=${arg_ENVIRONMENT}" "-DREPLACE=${arg_REPLACE}"
            -P ${CMAKE_CURRENT_FUNCTION_LIST_FILE}
        DEPENDS ${program} ${include} ${CMAKE_CURRENT_FUNCTION_LIST_FILE}
        COMMENT "Writing the manual page ${program}.1"
        VERBATIM)
    add_custom_target(${program}_man_page ALL DEPENDS ${page})
    install(FILES ${page} DESTINATION ${CMAKE_INSTALL_MANDIR}/man1 COMPONENT ${arg_COMPONENT})
endfunction()
