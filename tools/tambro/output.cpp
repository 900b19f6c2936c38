#include "output.h"

#include "printable/printable_text.h"

#include <QFile>
#include <QFileInfo>
#include <QSaveFile>

#include <cerrno>
#include <cstdio>
#include <cstring>

bool finishStandardOutput(QTextStream &out, QString &error)
{
    out.flush();
    const bool written = out.status() == QTextStream::Ok && std::fflush(stdout) == 0
        && !std::ferror(stdout);
    const int writeError = errno;
    // Some file systems report a lost write only when the file is closed.
    const bool closed = std::fclose(stdout) == 0;
    if (written && closed)
        return true;
    error = QString::fromLocal8Bit(std::strerror(written ? errno : writeError));
    return false;
}

int reportFailure(const QString &message)
{
    QTextStream(stderr) << "tambro: " << printableText(message) << '\n';
    return 1;
}

int reportFailure(const QString &message, const QByteArray &name)
{
    QTextStream(stderr) << "tambro: " << printableText(message).arg(printableBytes(name)) << '\n';
    return 1;
}

namespace {

// Goes on after a short write, so that the write that fails tells why.
bool writeAll(QFileDevice &file, const QByteArray &data)
{
    for (qint64 done = 0; done < data.size();) {
        const qint64 written = file.write(data.constData() + done, data.size() - done);
        if (written <= 0)
            return false;
        done += written;
    }
    return true;
}

// A device or FIFO is written as it is: renaming a new file over it would
// replace it.
bool writeInPlace(const QString &path, const QByteArray &data, QString &error)
{
    QFile file(path);
    if (file.open(QIODevice::WriteOnly) && writeAll(file, data) && file.flush()
        && file.error() == QFileDevice::NoError)
        return true;
    error = file.errorString();
    return false;
}

} // namespace

bool writeWholeFile(const QString &path, const QByteArray &data, QString &error)
{
    const QFileInfo target(path);
    if (target.exists() && !target.isFile())
        return writeInPlace(path, data, error);
    QSaveFile file(path);
    // Where no file can be made beside it, the file itself is written.
    file.setDirectWriteFallback(true);
    // Unbuffered: a write that fails in a buffer flushed by commit() goes unseen.
    if (file.open(QIODevice::WriteOnly | QIODevice::Unbuffered) && writeAll(file, data)
        && file.commit())
        return true;
    error = file.errorString();
    return false;
}
