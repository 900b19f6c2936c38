# kivsim_add_test(NAME <name> DEVICE <device folder> COMMAND <command> [<arg>...])
#
# Registers a test that runs the command inside kivsim's simulated phone:
#   kivsim --device <device folder> -- <command> [<arg>...]
# A relative device folder is taken relative to the calling CMakeLists.txt.
# The test passes or fails with the command's exit status; kivsim's own
# failures give 2 (bad arguments or device folder) or 125 (no sandbox).
function(kivsim_add_test)
    cmake_parse_arguments(PARSE_ARGV 0 arg "" "NAME;DEVICE" "COMMAND")
    if(arg_UNPARSED_ARGUMENTS)
        message(FATAL_ERROR "kivsim_add_test: unknown arguments: ${arg_UNPARSED_ARGUMENTS}")
    endif()
    if(NOT arg_NAME OR NOT arg_DEVICE OR NOT arg_COMMAND)
        message(FATAL_ERROR "kivsim_add_test: NAME, DEVICE and COMMAND are all needed")
    endif()
    get_filename_component(device "${arg_DEVICE}" ABSOLUTE)
    add_test(NAME ${arg_NAME}
        COMMAND $<TARGET_FILE:kivsim> --device ${device} -- ${arg_COMMAND})
endfunction()
