#include "devicecopy.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QProcess>
#include <QTemporaryDir>
#include <QTextStream>

namespace {

// Runs a tool and waits for it; false with its output (or why it could not
// run) in error.
bool runTool(const QString &program, const QStringList &arguments, QString &error)
{
    QProcess tool;
    tool.setProcessChannelMode(QProcess::MergedChannels);
    tool.start(program, arguments);
    if (!tool.waitForFinished(-1) || tool.exitStatus() != QProcess::NormalExit
        || tool.exitCode() != 0) {
        const QString output = QString::fromLocal8Bit(tool.readAll()).trimmed();
        error = output.isEmpty() ? tool.errorString() : output;
        return false;
    }
    return true;
}

} // namespace

DeviceCopy::DeviceCopy()
{
    QTemporaryDir folder(QDir::tempPath() + QStringLiteral("/kivsim-device-XXXXXX"));
    folder.setAutoRemove(false);
    if (folder.isValid())
        m_path = folder.path();
    else
        m_error = folder.errorString();
}

// QDir::removeRecursively cannot: it goes by names decoded to text, which
// loses names that are not UTF-8, and gives up in read-only folders.
DeviceCopy::~DeviceCopy()
{
    if (m_path.isEmpty() || m_keep)
        return;
    // What chmod cannot change, rm reports.
    QString error;
    runTool(QStringLiteral("chmod"),
            {QStringLiteral("-R"), QStringLiteral("u+rwX"), QStringLiteral("--"), m_path}, error);
    if (!runTool(QStringLiteral("rm"), {QStringLiteral("-rf"), QStringLiteral("--"), m_path}, error))
        QTextStream(stderr) << "kivsim: warning: cannot remove the device copy " << m_path << ": "
                            << error << Qt::endl;
}

bool DeviceCopy::fill(const QString &from)
{
    return runTool(QStringLiteral("cp"),
                   {QStringLiteral("-a"), QStringLiteral("--"), from + QStringLiteral("/."), m_path},
                   m_error);
}

bool ensureMountTable(const QString &path)
{
    if (QFileInfo::exists(path))
        return true;
    QDir().mkpath(QFileInfo(path).path());
    QFile(path).open(QIODevice::WriteOnly);
    return false;
}
