#include "java_install.h"

#include "notices.h"

#include "TAMBRO_DYNAMIC_Interface.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

#include <cstring>
#include <dirent.h>
#include <sys/stat.h>

namespace Tambro {

namespace {

bool isRegularFileIn(const QByteArray &folder, const char *name)
{
    struct stat info;
    return ::stat((folder + '/' + name).constData(), &info) == 0 && S_ISREG(info.st_mode);
}

// The folder's first regular file, in directory order, whose name equals the
// archive's ignoring case; empty when there is none.
QString findArchive(const QString &folder, const QString &archiveName)
{
    if (!QDir(folder).exists())
        return QString();
    const QByteArray encoded = QFile::encodeName(folder);
    DIR *dir = ::opendir(encoded.constData());
    if (!dir)
        return QString();
    const QString wanted = archiveName.toLower();
    QString found;
    while (const dirent *entry = ::readdir(dir)) {
        if (std::strcmp(entry->d_name, ".") == 0 || std::strcmp(entry->d_name, "..") == 0)
            continue;
        const QString name = QFile::decodeName(entry->d_name);
        if (name.toLower() == wanted && isRegularFileIn(encoded, entry->d_name)) {
            found = QFileInfo(QDir(folder), name).absoluteFilePath();
            break;
        }
    }
    ::closedir(dir);
    return found;
}

} // namespace

bool installJavaArchive(const QString &archivePath, int installArgument)
{
    TAMBRO_DYNAMIC_Interface services;
    return services.JAVA_Install(archivePath, QString(), installArgument) != 0;
}

bool installJavaDescriptor(const QString &descriptorPath, const QString &folder, int installArgument)
{
    TAMBRO_DYNAMIC_Interface services;
    QString archiveName;
    int number = 0;
    bool needsArchive = false;
    // A missing services library answers 1, so nothing more happens then.
    if (services.J2ME_JAID_ViewJad(descriptorPath, archiveName, number, needsArchive, installArgument) != 0
        || !needsArchive)
        return false;
    const QString archive = findArchive(folder, archiveName);
    if (archive.isEmpty()) {
        showInstallationFailed();
        return false;
    }
    // The archive first, the descriptor second.
    return services.JAVA_Install(archive, descriptorPath, installArgument) != 0;
}

} // namespace Tambro
