// Telling preloaded paths, their two forms, their parents and file names.

#include "folder_structure.h"

#include "TAMBRO_FixedFolder.h"
#include "core/translation.h"

#include <ZConfig.h>

#include <QCoreApplication>

namespace {

// A name whose translation is the name itself, or begins with it, has none:
// it is decoded again as UTF-8, so that a file named in any script reads right.
QString translatedFileName(const QString &baseName)
{
    const QByteArray utf8 = baseName.toUtf8();
    const QString translation = QCoreApplication::translate("QObject", utf8.constData());
    const QByteArray latin1 = translation.toLatin1();
    if (latin1.startsWith(utf8))
        return QString::fromUtf8(latin1);
    return translation;
}

// The real path of a folder named in the folder structure file; nothing for
// a folder outside the root.
std::optional<QString> realFolderPath(const QString &group)
{
    if (group == QLatin1String(Tambro::RootGroup))
        return TAMBRO_FixedFolder::m_sFMRootPath;
    if (TAMBRO_FixedFolder::hasPreloadFolderTag(group))
        return Tambro::fromPreloadTagForm(group);
    return Tambro::fixedFolderPath(group);
}

} // namespace

bool TAMBRO_FixedFolder::isPreloadFolder(const QString &path)
{
    return path != Tambro::PreloadRoot && path.startsWith(Tambro::PreloadRoot);
}

bool TAMBRO_FixedFolder::isPreloadFolderRoot(const QString &path)
{
    return path == Tambro::PreloadRoot;
}

bool TAMBRO_FixedFolder::hasPreloadFolderTag(const QString &text)
{
    return text.contains(Tambro::PreloadTag);
}

bool TAMBRO_FixedFolder::getPreloadFolderParent(const QString &path, QString &parentPath,
                                                QString &parentName)
{
    if (!isPreloadFolder(path))
        return false;
    const ZConfig &structure = Tambro::folderStructure();
    const QString parent = structure.readEntry(Tambro::toPreloadTagForm(path), QStringLiteral("parent_path"),
                                               QString());
    const std::optional<QString> real = parent.isEmpty() ? std::nullopt : realFolderPath(parent);
    parentPath = real.value_or(QString());
    if (!real)
        return false;
    // No fallback to the folder's own name here: an untranslated parent stays unnamed.
    parentName = Tambro::translateLatin1(structure.readEntry(parent, QStringLiteral("res_str"), QString()),
                                         structure.readEntry(parent, QStringLiteral("dis_str"), QString()));
    return true;
}

bool TAMBRO_FixedFolder::trPreloadFile(const QString &path, QString &name, bool keepExtension)
{
    const qsizetype slash = path.lastIndexOf(u'/');
    if (slash <= 0 || !isPreloadFolder(path))
        return false;
    const QString file = path.mid(slash + 1);
    const qsizetype dot = file.lastIndexOf(u'.');
    name = translatedFileName(dot < 0 ? file : file.left(dot));
    if (keepExtension && dot >= 0)
        name += file.mid(dot);
    return true;
}
