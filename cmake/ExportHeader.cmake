# kivtambro_export_header(TARGET): writes include/kivtambro_export.h in the
# build folder, with the KIVTAMBRO_EXPORT mark of the public classes and the
# block that opens and closes the plain functions' C linkage.

include(GenerateExportHeader)

function(kivtambro_export_header target)
    # Plain functions for callers without the class interface: some hand
    # toolkit strings across C linkage, as the phone's callers expect, which
    # clang warns of.
    set(c_exports [=[
#ifdef __clang__
#define KIVTAMBRO_BEGIN_C_EXPORTS                                                        \
    _Pragma("clang diagnostic push")                                                     \
    _Pragma("clang diagnostic ignored \"-Wreturn-type-c-linkage\"") extern "C" {
#define KIVTAMBRO_END_C_EXPORTS } _Pragma("clang diagnostic pop")
#else
#define KIVTAMBRO_BEGIN_C_EXPORTS extern "C" {
#define KIVTAMBRO_END_C_EXPORTS }
#endif]=])
    generate_export_header(${target}
        BASE_NAME KIVTAMBRO
        EXPORT_FILE_NAME ${PROJECT_BINARY_DIR}/include/kivtambro_export.h
        CUSTOM_CONTENT_FROM_VARIABLE c_exports)
endfunction()
