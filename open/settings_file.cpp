// The file manager's settings file, shared with the application.
#include "TAMBRO_Global.h"

#include <QDir>
#include <QFile>

#include <fcntl.h>
#include <sys/stat.h>

namespace {

constexpr mode_t EveryoneMayWrite = 0777;

// Unlike the phone's chmod, a symbolic link is not followed: the setup folder
// is world-writable, and a link planted there must not open another file to
// everyone. The call fails on a link, which is left as it is.
void setMode(const QString &path)
{
    (void)::fchmodat(AT_FDCWD, QFile::encodeName(path).constData(), EveryoneMayWrite, AT_SYMLINK_NOFOLLOW);
}

} // namespace

QString TAMBRO_Global::getConfigFile()
{
    QString folder = qEnvironmentVariable("KIV_APP_WRITE_PATH").trimmed();
    folder += folder.endsWith(u'/') ? QStringLiteral("setup/") : QStringLiteral("/setup/");
    // Made only when missing, and non-recursively: the write path itself must exist.
    if (!QDir(folder).exists() && QDir().mkdir(folder))
        setMode(folder);
    const QString file = folder + QStringLiteral("kiv_tambro.cfg");
    setMode(file);
    return file;
}
