#include "hostview.h"

#include <QDir>
#include <QFile>

#include <climits>
#include <unistd.h>

namespace {

// The link's own text: a relative link must stay relative inside the sandbox.
QString linkText(const QString &path)
{
    QByteArray target(PATH_MAX, Qt::Uninitialized);
    const ssize_t length = ::readlink(QFile::encodeName(path).constData(), target.data(),
                                      size_t(target.size()));
    if (length < 0)
        return QString();
    target.truncate(int(length));
    return QFile::decodeName(target);
}

} // namespace

QStringList mirrorHostFolder(const QString &folder, const QStringList &skippedNames)
{
    QStringList arguments;
    const QDir dir(folder);
    const QFileInfoList entries = dir.entryInfoList(
        QDir::AllEntries | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot, QDir::Name);
    for (const QFileInfo &entry : entries) {
        if (skippedNames.contains(entry.fileName()))
            continue;
        const QString path = entry.absoluteFilePath();
        const QString target = entry.isSymLink() ? linkText(path) : QString();
        if (!target.isEmpty())
            arguments << QStringLiteral("--symlink") << target << path;
        else // "-try": an entry that vanished meanwhile is no reason to fail
            arguments << QStringLiteral("--ro-bind-try") << path << path;
    }
    return arguments;
}
