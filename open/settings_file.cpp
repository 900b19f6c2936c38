// The file manager's settings file, shared with the application.
#include "TAMBRO_Global.h"

#include <QDir>
#include <QFile>

#include <sys/stat.h>

namespace {

constexpr mode_t EveryoneMayWrite = 0777;

void setMode(const QString &path)
{
    (void)::chmod(QFile::encodeName(path).constData(), EveryoneMayWrite);
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
