#include "devicecopy.h"

#include "childprocess.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QProcess>
#include <QTemporaryDir>
#include <QTextStream>

#include <csignal>
#include <fcntl.h>
#include <sys/prctl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace {

const QString folderPrefix = QStringLiteral("kivsim-");
// In the temporary folder: the copy, and which kivsim made it.
const QString copyName = QStringLiteral("device");
const QString ownerName = QStringLiteral("owner");

// Runs a tool and waits for it; false with its output (or why it could not
// run) in error.
bool runTool(const QString &program, const QStringList &arguments, QString &error,
             OnSignal onSignal = OnSignal::Stop)
{
    QProcess tool;
    tool.setProcessChannelMode(QProcess::MergedChannels);
    // A copy goes no further once kivsim is killed (SIGKILL is not caught).
    tool.setChildProcessModifier([] { ::prctl(PR_SET_PDEATHSIG, SIGKILL); });
    if (!runChild(tool, program, arguments, onSignal) || tool.exitStatus() != QProcess::NormalExit
        || tool.exitCode() != 0) {
        const QString output = QString::fromLocal8Bit(tool.readAll()).trimmed();
        error = output.isEmpty() ? tool.errorString() : output;
        return false;
    }
    return true;
}

// QDir::removeRecursively cannot: it goes by names decoded to text, which
// loses names that are not UTF-8, and gives up in read-only folders.
void removeFolder(const QString &folder)
{
    // What chmod cannot change, rm reports.
    QString error;
    runTool(QStringLiteral("chmod"),
            {QStringLiteral("-R"), QStringLiteral("u+rwX"), QStringLiteral("--"), folder}, error,
            OnSignal::Finish);
    if (!runTool(QStringLiteral("rm"), {QStringLiteral("-rf"), QStringLiteral("--"), folder}, error,
                 OnSignal::Finish))
        QTextStream(stderr) << "kivsim: warning: cannot remove the device copy " << folder << ": "
                            << error << Qt::endl;
}

// A process as "pid start-time", the start time telling it from a later
// process of the same number; empty when there is no such process.
QByteArray processIdentity(qint64 pid)
{
    QFile stat(QStringLiteral("/proc/%1/stat").arg(pid));
    if (!stat.open(QIODevice::ReadOnly))
        return QByteArray();
    const QByteArray line = stat.readAll();
    // The fields after the command name, which may hold anything but ends with ')'.
    const QList<QByteArray> fields = line.mid(line.lastIndexOf(')') + 2).split(' ');
    return fields.size() > 19 ? QByteArray::number(pid) + ' ' + fields.at(19) : QByteArray();
}

// The owner file's text, read without following a link; empty when unusable.
QByteArray ownerOf(const QString &folder)
{
    const int fd = ::open(QFile::encodeName(folder + u'/' + ownerName).constData(),
                          O_RDONLY | O_NOFOLLOW | O_NONBLOCK | O_CLOEXEC);
    if (fd < 0)
        return QByteArray();
    char text[64];
    const ssize_t length = ::read(fd, text, sizeof text);
    ::close(fd);
    return length > 0 ? QByteArray(text, int(length)) : QByteArray();
}

// Only a folder of this user's, that no one else could have put there or
// changed, is taken for a copy of this user's kivsim.
bool isOwnCopyFolder(const QString &folder)
{
    struct stat info;
    return ::lstat(QFile::encodeName(folder).constData(), &info) == 0 && S_ISDIR(info.st_mode)
        && info.st_uid == ::geteuid() && (info.st_mode & 07777) == S_IRWXU;
}

} // namespace

DeviceCopy::DeviceCopy()
{
    QTemporaryDir folder(QDir::tempPath() + u'/' + folderPrefix + QStringLiteral("XXXXXX"));
    folder.setAutoRemove(false);
    if (!folder.isValid()) {
        m_error = folder.errorString();
        return;
    }
    m_folder = folder.path();
    m_path = m_folder + u'/' + copyName;
    QFile owner(m_folder + u'/' + ownerName);
    if (!owner.open(QIODevice::WriteOnly) || owner.write(processIdentity(::getpid())) < 0)
        m_error = owner.errorString();
}

DeviceCopy::~DeviceCopy()
{
    if (!m_folder.isEmpty() && !m_keep)
        removeFolder(m_folder);
}

void DeviceCopy::keep()
{
    m_keep = true;
    QFile::remove(m_folder + u'/' + ownerName); // no later kivsim takes it for orphaned
}

bool DeviceCopy::fill(const QString &from)
{
    // As -a, but what is copied is the caller's, not the device folder's owner's.
    if (!runTool(QStringLiteral("cp"),
                 {QStringLiteral("-dR"), QStringLiteral("--preserve=mode,timestamps,links"),
                  QStringLiteral("--"), from + QStringLiteral("/."), m_path},
                 m_error))
        return false;
    return QFile::setPermissions(m_path, QFileDevice::ReadOwner | QFileDevice::WriteOwner
                                             | QFileDevice::ExeOwner);
}

void removeOrphanedCopies()
{
    const QDir temporary(QDir::tempPath());
    const QStringList names =
        temporary.entryList({folderPrefix + u'*'}, QDir::Dirs | QDir::Hidden | QDir::NoSymLinks);
    for (const QString &name : names) {
        const QString folder = temporary.filePath(name);
        const QByteArray owner = ownerOf(folder);
        if (!isOwnCopyFolder(folder) || owner.isEmpty())
            continue;
        if (processIdentity(owner.split(' ').constFirst().toLongLong()) != owner)
            removeFolder(folder);
    }
}

bool ensureMountTable(const QString &path)
{
    if (QFileInfo::exists(path))
        return true;
    QDir().mkpath(QFileInfo(path).path());
    QFile(path).open(QIODevice::WriteOnly);
    return false;
}
