#include "hostphone.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QStandardPaths>

#include <cerrno>
#include <cstring>
#include <grp.h>
#include <pwd.h>
#include <sys/stat.h>
#include <unistd.h>

namespace {

QString systemError()
{
    return QString::fromLocal8Bit(std::strerror(errno));
}

// Root's session and folders mean nothing to the user the run becomes.
void leaveRootEnvironment(const QString &home)
{
    for (const char *name : {"XDG_RUNTIME_DIR", "DBUS_SESSION_BUS_ADDRESS", "XAUTHORITY", "XDG_DATA_HOME",
                             "XDG_CONFIG_HOME", "XDG_CACHE_HOME"})
        qunsetenv(name);
    qputenv("HOME", QFile::encodeName(home));
}

} // namespace

QString defaultPhoneFolder()
{
    return QStandardPaths::writableLocation(QStandardPaths::GenericDataLocation)
        + QStringLiteral("/kivtambro/phone");
}

QString unfitStorageFolder(const QString &folder)
{
    const QFileInfo info(folder);
    if (!info.isDir())
        return QStringLiteral("%1 is not a folder").arg(folder);
    const QString real = info.canonicalFilePath();
    if (real == QLatin1String("/"))
        return QStringLiteral("%1 is the root folder").arg(folder);
    if (real == QFileInfo(QDir::homePath()).canonicalFilePath())
        return QStringLiteral("%1 is the home folder, whose folders the file manager may rename")
            .arg(folder);
    return QString();
}

QString becomeOwnerOf(const QString &phoneFolder)
{
    if (::geteuid() != 0)
        return QString();
    struct stat folder;
    if (::stat(QFile::encodeName(phoneFolder).constData(), &folder) != 0)
        return QStringLiteral("cannot use %1: %2").arg(phoneFolder, systemError());
    if (folder.st_uid == 0)
        return QStringLiteral("%1 belongs to root, and a command never runs as root on this machine: "
                              "give --phone a folder of the user whose files it holds")
            .arg(phoneFolder);
    const passwd *user = ::getpwuid(folder.st_uid);
    if (!user)
        return QStringLiteral("the owner of %1 (%2) is no user of this machine").arg(phoneFolder).arg(folder.st_uid);
    const gid_t group = user->pw_gid;
    const QString home = QFile::decodeName(user->pw_dir);
    if (::setgroups(1, &group) != 0 || ::setgid(group) != 0 || ::setuid(folder.st_uid) != 0)
        return QStringLiteral("cannot become the owner of %1: %2").arg(phoneFolder, systemError());
    if (::setuid(0) == 0)
        return QStringLiteral("could not leave root");
    leaveRootEnvironment(home);
    return QString();
}
