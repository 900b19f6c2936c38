// Shared by the fuzz targets: failing loudly, and text from raw bytes.
#pragma once

#include <QString>

#include <cstdio>
#include <cstdlib>
#include <cstring>

inline void check(bool condition, const char *what)
{
    if (!condition) {
        std::fprintf(stderr, "invariant broken: %s\n", what);
        std::abort();
    }
}

// Any UTF-16 units, unpaired surrogates and NULs included.
inline QString utf16Text(const uint8_t *data, size_t size)
{
    QString text(qsizetype(size / 2), Qt::Uninitialized);
    if (size >= 2) // an empty input may come as a null pointer
        std::memcpy(text.data(), data, size / 2 * 2);
    return text;
}
