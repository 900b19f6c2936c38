// Reading a whole file that the phone's configuration or tables live in.
#pragma once

#include <QByteArray>
#include <QString>

namespace Tambro {

struct FileContent
{
    enum Status { Read, Missing, NotRegular, TooLarge, Unreadable };

    Status status = Missing;
    QByteArray data; // the whole file when Read
    QString problem; // why it was not read, for a message; empty when Read or Missing
};

// Reads the whole of a regular file of at most maxBytes. Anything else is not
// read: a FIFO would block the reader for ever and a device such as /dev/zero
// never ends, so neither is even opened for reading, and a larger file is
// refused whole rather than read in part. The size is counted as read, not
// taken from the file system, which gives 0 for the files of /proc.
FileContent readRegularFile(const QString &path, qint64 maxBytes);

} // namespace Tambro
