#include "regular_file.h"

#include <QFile>

#include <algorithm>
#include <cerrno>
#include <cstring>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace Tambro {

namespace {

QString kindOf(mode_t mode)
{
    if (S_ISDIR(mode))
        return QStringLiteral("is a folder");
    if (S_ISFIFO(mode))
        return QStringLiteral("is a FIFO");
    if (S_ISCHR(mode) || S_ISBLK(mode))
        return QStringLiteral("is a device");
    return QStringLiteral("is not a regular file");
}

FileContent failure(FileContent::Status status, const QString &problem)
{
    return {status, QByteArray(), problem};
}

FileContent systemFailure()
{
    const int error = errno;
    if (error == ENOENT || error == ENOTDIR)
        return failure(FileContent::Missing, QString());
    return failure(FileContent::Unreadable, QString::fromLocal8Bit(std::strerror(error)));
}

// Reads at most limit + 1 bytes: one more than allowed tells a file too large.
bool readUpTo(int fd, qint64 limit, QByteArray &data)
{
    constexpr qint64 Chunk = 64 * 1024;
    for (;;) {
        const qint64 wanted = std::min(Chunk, limit + 1 - data.size());
        if (wanted <= 0)
            return true;
        const qsizetype before = data.size();
        data.resize(before + wanted);
        const ssize_t got = ::read(fd, data.data() + before, size_t(wanted));
        const int error = errno;
        data.resize(before + std::max<ssize_t>(got, 0));
        if (got == 0)
            return true;
        if (got < 0 && error != EINTR) {
            errno = error;
            return false;
        }
    }
}

} // namespace

FileContent readRegularFile(const QString &path, qint64 maxBytes)
{
    const QByteArray name = QFile::encodeName(path);
    struct stat info;
    if (::stat(name.constData(), &info) != 0)
        return systemFailure();
    if (!S_ISREG(info.st_mode))
        return failure(FileContent::NotRegular, kindOf(info.st_mode));
    // Non-blocking and checked again once open: the name may have been
    // replaced by a FIFO meanwhile.
    const int fd = ::open(name.constData(), O_RDONLY | O_NONBLOCK | O_CLOEXEC | O_NOCTTY);
    if (fd < 0)
        return systemFailure();
    FileContent content;
    content.data.reserve(qsizetype(std::min<qint64>(info.st_size, maxBytes) + 1));
    if (::fstat(fd, &info) != 0 || !S_ISREG(info.st_mode))
        content = failure(FileContent::NotRegular, kindOf(info.st_mode));
    else if (!readUpTo(fd, maxBytes, content.data))
        content = systemFailure();
    else if (content.data.size() > maxBytes)
        content = failure(FileContent::TooLarge,
                          QStringLiteral("is larger than %1 bytes").arg(maxBytes));
    else
        content.status = FileContent::Read;
    ::close(fd);
    return content;
}

} // namespace Tambro
