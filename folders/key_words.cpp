// The folders that key words name: where the file manager puts pictures,
// voice records, videos and everything else.
#include "folder_structure.h"

#include "TAMBRO_FixedFolder.h"
#include "TAMBRO_Global.h"

#include <ZConfig.h>

#include <QFileInfo>

namespace {

QString keyWordEntry(const char *group, const QString &keyWord)
{
    return Tambro::folderStructure().readEntry(QLatin1String(group), keyWord, QString()).trimmed();
}

// A key word's folder in one group; nothing when the group has no entry for
// it or its folder lies outside the root.
std::optional<QString> keyWordPath(const char *group, const QString &keyWord)
{
    const QString relative = keyWordEntry(group, keyWord);
    return relative.isEmpty() ? std::nullopt : Tambro::fixedFolderPath(relative);
}

// A key word's folder with its display name, for the shortcuts of TAMBRO_Global.
QString keyWordFolder(const char *keyWord, QString *name)
{
    const QString path = TAMBRO_FixedFolder::getPathByKey(QLatin1String(keyWord));
    FixedFolder folder;
    TAMBRO_FixedFolder::getFolder(path, folder, true);
    if (name)
        *name = folder.displayName;
    return path;
}

} // namespace

QString TAMBRO_FixedFolder::getPathByKey(const QString &key)
{
    // "image/x" asks for "image"; a key beginning with "/" is taken whole.
    const qsizetype slash = key.indexOf(u'/');
    const QString keyWord = slash >= 1 ? key.left(slash) : key;
    std::optional<QString> found = keyWordPath(Tambro::KeyWordGroup, keyWord);
    if (!found)
        found = keyWordPath(Tambro::PseudoKeyWordGroup, keyWord);
    const QString path = found ? *found : getDefaultFolder();
    if (!QFileInfo(path).isDir())
        Tambro::makeFolderPath(path);
    return path;
}

QString TAMBRO_FixedFolder::getDefaultFolder()
{
    const QString relative = keyWordEntry(Tambro::KeyWordGroup, QStringLiteral("default"));
    return Tambro::fixedFolderPath(relative).value_or(m_sFMRootPath);
}

QString TAMBRO_GetPathByKey(const QString &key)
{
    return TAMBRO_FixedFolder::getPathByKey(key);
}

QString TAMBRO_Global::myPhoto(QString *name)
{
    return keyWordFolder("image", name);
}

QString TAMBRO_Global::myVoice(QString *name)
{
    return keyWordFolder("voice", name);
}

QString TAMBRO_Global::myVideo(QString *name)
{
    return keyWordFolder("video", name);
}
