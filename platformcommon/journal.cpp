#include "journal.h"
#include "warning.h"

#include <QDebug>
#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>

#include <atomic>
#include <cerrno>
#include <cstring>

#include <fcntl.h>
#include <unistd.h>

namespace KivSim::Journal {

namespace {

const QByteArray &journalPath()
{
    static const QByteArray path = qgetenv("KIVSIM_JOURNAL");
    return path;
}

// QJsonObject would sort the keys; the journal keeps the call's own order, so
// the object is assembled here and only the values go through QJsonDocument.
QByteArray toJson(const QJsonValue &value)
{
    const QByteArray wrapped = QJsonDocument(QJsonArray{value}).toJson(QJsonDocument::Compact);
    return wrapped.mid(1, wrapped.size() - 2); // drop the array's brackets
}

void warnOnce(const char *what)
{
    static std::atomic_bool warned{false};
    if (!warned.exchange(true)) {
        platformWarning(QStringLiteral("cannot %1 the journal %2: %3")
                            .arg(QLatin1String(what), QFile::decodeName(journalPath()),
                                 QString::fromLocal8Bit(std::strerror(errno))));
    }
}

} // namespace

bool enabled()
{
    return !journalPath().isEmpty();
}

Line::Line(const char *call)
{
    m_text = "{\"call\":" + toJson(QString::fromLatin1(call));
}

Line &Line::arg(const char *name, const QJsonValue &value)
{
    m_text += ",\"";
    m_text += name;
    m_text += "\":";
    m_text += toJson(value);
    return *this;
}

void Line::write()
{
    if (!enabled())
        return;
    const QByteArray line = m_text + "}\n";
    // Opened per line, so that the file may be truncated, moved or deleted
    // meanwhile; without blocking, should it be a FIFO that nobody reads.
    const int fd = ::open(journalPath().constData(),
                          O_WRONLY | O_APPEND | O_CREAT | O_CLOEXEC | O_NONBLOCK, 0644);
    if (fd < 0) {
        warnOnce("open");
        return;
    }
    if (::write(fd, line.constData(), size_t(line.size())) != line.size())
        warnOnce("write to");
    ::close(fd);
}

} // namespace KivSim::Journal
