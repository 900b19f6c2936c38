// Shared by the fuzz targets: failing loudly, text from raw bytes, and the
// input as a file.
#pragma once

#include <QByteArray>
#include <QString>

#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <ctime>
#include <sys/mman.h>
#include <sys/stat.h>
#include <unistd.h>

inline void check(bool condition, const char *what)
{
    if (!condition) {
        std::fprintf(stderr, "invariant broken: %s\n", what);
        std::abort();
    }
}

inline QByteArray bytes(const uint8_t *data, size_t size)
{
    return QByteArray::fromRawData(reinterpret_cast<const char *>(data), qsizetype(size));
}

// Any UTF-16 units, unpaired surrogates and NULs included.
inline QString utf16Text(const uint8_t *data, size_t size)
{
    QString text(qsizetype(size / 2), Qt::Uninitialized);
    if (size >= 2) // an empty input may come as a null pointer
        std::memcpy(text.data(), data, size / 2 * 2);
    return text;
}

// Warnings about bad lines would bury the fuzzer's own output.
inline void quietMessages()
{
    [[maybe_unused]] static const QtMessageHandler previous =
        qInstallMessageHandler([](QtMsgType, const QMessageLogContext &, const QString &) {});
}

// The input as a file that lives in memory, so that millions of runs do not
// touch the disk; always the same path. Each input gets a later modification
// time, so that a reader that looks for changes sees every one.
inline const QString &asFile(const uint8_t *data, size_t size)
{
    static const int fd = memfd_create("fuzz_input", 0);
    static const QString path = QStringLiteral("/proc/self/fd/%1").arg(fd);
    static time_t writes = 0;
    check(fd >= 0 && ftruncate(fd, 0) == 0, "cannot use an in-memory file");
    for (size_t done = 0; done < size;) {
        const ssize_t written = pwrite(fd, data + done, size - done, off_t(done));
        check(written > 0, "cannot write the in-memory file");
        done += size_t(written);
    }
    const timespec times[2] = {{++writes, 0}, {writes, 0}};
    check(futimens(fd, times) == 0, "cannot stamp the in-memory file");
    return path;
}
