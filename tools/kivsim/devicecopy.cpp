#include "devicecopy.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QProcess>

bool copyDeviceFolder(const QString &from, const QString &to, QString &error)
{
    QProcess copy;
    copy.setProcessChannelMode(QProcess::MergedChannels);
    copy.start(QStringLiteral("cp"),
               {QStringLiteral("-a"), QStringLiteral("--"), from + QStringLiteral("/."), to});
    if (!copy.waitForFinished(-1) || copy.exitStatus() != QProcess::NormalExit
        || copy.exitCode() != 0) {
        const QString output = QString::fromLocal8Bit(copy.readAll()).trimmed();
        error = output.isEmpty() ? copy.errorString() : output;
        return false;
    }
    return true;
}

bool ensureMountTable(const QString &copy, const QString &name)
{
    const QString path = QDir(copy).filePath(name);
    if (QFileInfo::exists(path))
        return true;
    QDir().mkpath(QFileInfo(path).path());
    QFile(path).open(QIODevice::WriteOnly);
    return false;
}
