#include "confinedpath.h"

#include <QFile>
#include <QStringList>

#include <climits>
#include <sys/stat.h>
#include <unistd.h>

namespace {

// As many links as the kernel follows in one path before it gives up.
constexpr int MaxLinks = 40;

// The link's target, or nothing when path is no symbolic link.
std::optional<QString> linkTarget(const QString &path)
{
    const QByteArray name = QFile::encodeName(path);
    struct stat info;
    if (::lstat(name.constData(), &info) != 0 || !S_ISLNK(info.st_mode))
        return std::nullopt;
    QByteArray target(PATH_MAX, Qt::Uninitialized);
    const ssize_t length = ::readlink(name.constData(), target.data(), size_t(target.size()));
    target.truncate(length < 0 ? 0 : qsizetype(length));
    return QFile::decodeName(target);
}

QStringList componentsOf(const QString &path)
{
    return path.split(u'/', Qt::SkipEmptyParts);
}

} // namespace

std::optional<QString> resolveInside(const QString &folder, const QString &relative,
                                     QString &error)
{
    QStringList pending = componentsOf(relative);
    QStringList resolved;
    int links = 0;
    while (!pending.isEmpty()) {
        const QString component = pending.takeFirst();
        if (component == QLatin1String("."))
            continue;
        if (component == QLatin1String("..")) {
            if (resolved.isEmpty()) {
                error = QStringLiteral("\"%1\" leads out of the device folder").arg(relative);
                return std::nullopt;
            }
            resolved.removeLast();
            continue;
        }
        const QString here = (QStringList{folder} + resolved + QStringList{component}).join(u'/');
        const std::optional<QString> target = linkTarget(here);
        if (!target) {
            resolved.append(component);
            continue;
        }
        if (target->startsWith(u'/') || ++links > MaxLinks) {
            error = links > MaxLinks
                ? QStringLiteral("\"%1\" has too many symbolic links").arg(relative)
                : QStringLiteral("\"%1\" leads out of the device folder (%2 -> %3)")
                      .arg(relative, (resolved + QStringList{component}).join(u'/'), *target);
            return std::nullopt;
        }
        pending = componentsOf(*target) + pending;
    }
    return (QStringList{folder} + resolved).join(u'/');
}
