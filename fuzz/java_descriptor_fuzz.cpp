// Java descriptors ("name: value" lines) as the platforms' services read them
// from a file: any bytes give a descriptor, its archive a bare file name.
#include "fuzz_input.h"

#include "platformcommon/documents.h"

#include <cstdint>

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    const std::optional<KivPlatform::JavaDescriptor> descriptor = KivPlatform::javaDescriptor(asFile(data, size));
    check(descriptor || size > 64 * 1024, "a small descriptor is not read");
    if (!descriptor)
        return 0;
    check(!descriptor->archiveName.contains(u'/'), "the archive's name holds a folder");
    check(descriptor->applications >= 0 && descriptor->applications <= bytes(data, size).count('\n') + 1,
          "more applications than lines");
    return 0;
}
