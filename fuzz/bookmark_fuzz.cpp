// Bookmark files (".url" shortcuts and vBookmarks) as the platforms' services
// read them from a file: a URL found is one trimmed line of the input.
#include "fuzz_input.h"

#include "platformcommon/documents.h"

#include <cstdint>

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    const std::optional<QString> url = KivPlatform::bookmarkUrl(asFile(data, size));
    if (url) {
        check(!url->contains(u'\n') && *url == url->trimmed(), "the URL is not one trimmed line");
        check(QString::fromUtf8(bytes(data, size)).contains(*url), "the URL is not in the file");
    }
    return 0;
}
