#include "folders_command.h"

#include "folder_reader.h"
#include "text_table.h"

#include <KIV_Paths.h>
#include <TAMBRO_FixedFolder.h>
#include <ZConfig.h>

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QSet>

#include <algorithm>
#include <cstring>

namespace {

// What the folder structure file says is read here as its format is
// documented (docs/devices.md); what the library makes of it comes from the
// library. The file's groups:
constexpr char KeyWordGroup[] = "TAMBRO_KEYWORD";
constexpr char PseudoKeyWordGroup[] = "TAMBRO_PSEUDO_KEYWORD";
constexpr char RootGroup[] = "TOPLEVEL";
// The tag that stands for the preload root in preloaded folders' names.
constexpr char PreloadTag[] = "//ZELK_PRELOAD:";

// The device's file when there is one, else the system's.
QString structureFilePath()
{
    const QString name = u'/' + QLatin1String(KivPaths::FolderStructureFileName);
    const QString deviceFile = QLatin1String(KivPaths::FileManagerDeviceFolder) + name;
    return QFileInfo::exists(deviceFile) ? deviceFile : QLatin1String(KivPaths::FileManagerSystemFolder) + name;
}

// A folder of the file, as written (blanks kept), under the root.
QString absoluteFolderPath(const QString &relativePath)
{
    return TAMBRO_FixedFolder::m_sFMRootPath + relativePath;
}

QString fromTagForm(const QString &taggedPath)
{
    return QLatin1String(KivPaths::PreloadRoot) + taggedPath.mid(qsizetype(strlen(PreloadTag)));
}

bool isFolder(const QString &path)
{
    return QFileInfo(path).isDir();
}

// Whether a folder was there before the library's first look at the
// structure, which creates the key words' folders.
QString onDisk(bool before, bool after)
{
    if (before)
        return QStringLiteral("yes");
    return after ? QStringLiteral("created") : QStringLiteral("missing");
}

struct KeyWord
{
    QString key;
    bool pseudo = false;
    QString relativePath; // as written, blanks kept
    QString path;
    bool existedBefore = false;
};

QList<KeyWord> readKeyWords(const ZConfig &structure)
{
    QList<KeyWord> keyWords;
    for (const auto &[group, pseudo] : {std::pair{KeyWordGroup, false}, std::pair{PseudoKeyWordGroup, true}}) {
        QMap<QString, QString> entries;
        structure.getGroupEntriesKeyList(QLatin1String(group), entries);
        for (auto it = entries.cbegin(); it != entries.cend(); ++it) {
            const QString path = absoluteFolderPath(it.value());
            keyWords.append({it.key(), pseudo, it.value(), path, isFolder(path)});
        }
    }
    return keyWords;
}

// The fixed folders' entries that name further folders: subfolders in their
// order (up to the first empty one) and the preloaded folder shown inside.
QStringList namedFolders(const ZConfig &structure, const QString &group)
{
    QStringList folders;
    const int count = structure.readNumEntry(group, QStringLiteral("sub_num"), -1);
    for (int i = 1; i <= count; ++i) {
        const QString sub = structure.readEntry(group, QStringLiteral("sub%1").arg(i), QString());
        if (sub.isEmpty())
            break;
        folders << sub;
    }
    const QString preload = structure.readEntry(group, QStringLiteral("preload_path"), QString());
    if (!preload.isEmpty())
        folders << preload;
    return folders;
}

// The preloaded folders (in tag form) reachable from the root and the key
// words' folders, in the order they are first named.
QStringList preloadedFolders(const ZConfig &structure, const QList<KeyWord> &keyWords)
{
    QStringList pending = {QLatin1String(RootGroup)};
    for (const KeyWord &keyWord : keyWords)
        pending << keyWord.relativePath;
    QSet<QString> seen(pending.cbegin(), pending.cend());
    QStringList preloaded;
    for (qsizetype next = 0; next < pending.size(); ++next) {
        for (const QString &folder : namedFolders(structure, pending.at(next))) {
            if (seen.contains(folder))
                continue;
            seen.insert(folder);
            if (TAMBRO_FixedFolder::hasPreloadFolderTag(folder))
                preloaded << folder;
            else
                pending << folder;
        }
    }
    return preloaded;
}

QJsonObject keyWordObject(const KeyWord &keyWord)
{
    FixedFolder folder;
    TAMBRO_FixedFolder::getFolder(keyWord.path, folder, true);
    return QJsonObject{
        {QStringLiteral("key"), keyWord.key},
        {QStringLiteral("kind"), keyWord.pseudo ? QStringLiteral("pseudo") : QStringLiteral("key word")},
        {QStringLiteral("relativePath"), keyWord.relativePath},
        {QStringLiteral("path"), keyWord.path},
        {QStringLiteral("onDisk"), onDisk(keyWord.existedBefore, isFolder(keyWord.path))},
        {QStringLiteral("name"), folder.displayName},
        {QStringLiteral("bigIcon"), folder.bigIcon},
        {QStringLiteral("smallIcon"), folder.smallIcon},
    };
}

QJsonArray preloadedFileObjects(const QString &folder)
{
    QList<DiskEntry> entries = readFolder(folder).value_or(QList<DiskEntry>());
    std::sort(entries.begin(), entries.end(), [](const DiskEntry &a, const DiskEntry &b) {
        return a.nameBytes < b.nameBytes;
    });
    QJsonArray files;
    for (const DiskEntry &entry : std::as_const(entries)) {
        if (entry.isFolder)
            continue;
        const QString path = QDir(folder).filePath(entry.name);
        QString name;
        TAMBRO_FixedFolder::trPreloadFile(path, name, true);
        QJsonObject file{{QStringLiteral("path"), path}, {QStringLiteral("name"), name}};
        if (!entry.nameIsText())
            file.insert(QStringLiteral("pathBytes"),
                        jsonBytes(QFile::encodeName(folder) + '/' + entry.nameBytes));
        files.append(file);
    }
    return files;
}

QJsonObject preloadedFolderObject(const QString &taggedPath)
{
    const QString path = fromTagForm(taggedPath);
    QString parentPath;
    QString parentName;
    TAMBRO_FixedFolder::getPreloadFolderParent(path, parentPath, parentName);
    FixedFolder folder;
    TAMBRO_FixedFolder::getFolder(path, folder, true);
    return QJsonObject{
        {QStringLiteral("group"), taggedPath},
        {QStringLiteral("path"), path},
        {QStringLiteral("name"), folder.displayName},
        {QStringLiteral("onDisk"), isFolder(path) ? QStringLiteral("yes") : QStringLiteral("missing")},
        {QStringLiteral("parentPath"), parentPath},
        {QStringLiteral("parentName"), parentName},
        {QStringLiteral("files"), preloadedFileObjects(path)},
    };
}

QJsonObject describeStructure()
{
    const QString file = structureFilePath();
    const ZConfig structure(file, false);
    // Read before the library's first query creates the key words' folders.
    const QList<KeyWord> keyWords = readKeyWords(structure);
    QJsonArray keyWordArray;
    for (const KeyWord &keyWord : keyWords)
        keyWordArray.append(keyWordObject(keyWord));
    QJsonArray preloadedArray;
    for (const QString &folder : preloadedFolders(structure, keyWords))
        preloadedArray.append(preloadedFolderObject(folder));
    return QJsonObject{
        {QStringLiteral("root"), TAMBRO_FixedFolder::m_sFMRootPath},
        {QStringLiteral("structureFile"), file},
        {QStringLiteral("structureFileExists"), QFileInfo::exists(file)},
        {QStringLiteral("defaultFolder"), TAMBRO_FixedFolder::getDefaultFolder()},
        {QStringLiteral("keyWords"), keyWordArray},
        {QStringLiteral("preloadedFolders"), preloadedArray},
    };
}

QString orDash(const QString &text)
{
    return text.isEmpty() ? QStringLiteral("-") : text;
}

QString keyWordTable(const QJsonArray &keyWords)
{
    TextTable table({QStringLiteral("KEY WORD"), QStringLiteral("KIND"), QStringLiteral("PATH"),
                     QStringLiteral("ON DISK"), QStringLiteral("NAME"), QStringLiteral("ICONS")});
    for (const QJsonValue &value : keyWords) {
        const QJsonObject k = value.toObject();
        table.addRow({k[QStringLiteral("key")].toString(), k[QStringLiteral("kind")].toString(),
                      k[QStringLiteral("path")].toString(), k[QStringLiteral("onDisk")].toString(),
                      k[QStringLiteral("name")].toString(),
                      k[QStringLiteral("bigIcon")].toString() + u' '
                          + k[QStringLiteral("smallIcon")].toString()});
    }
    return table.toString();
}

QString preloadedTable(const QJsonArray &folders)
{
    TextTable table({QStringLiteral("PRELOADED FOLDER"), QStringLiteral("PATH"),
                     QStringLiteral("ON DISK"), QStringLiteral("NAME"), QStringLiteral("PARENT"),
                     QStringLiteral("PARENT NAME")});
    for (const QJsonValue &value : folders) {
        const QJsonObject f = value.toObject();
        table.addRow({f[QStringLiteral("group")].toString(), f[QStringLiteral("path")].toString(),
                      f[QStringLiteral("onDisk")].toString(), f[QStringLiteral("name")].toString(),
                      orDash(f[QStringLiteral("parentPath")].toString()),
                      orDash(f[QStringLiteral("parentName")].toString())});
    }
    return table.toString();
}

QString preloadedFileTable(const QJsonArray &folders)
{
    TextTable table({QStringLiteral("PRELOADED FILE"), QStringLiteral("NAME")});
    for (const QJsonValue &folder : folders) {
        for (const QJsonValue &value : folder.toObject()[QStringLiteral("files")].toArray()) {
            const QJsonObject file = value.toObject();
            table.addRow({file[QStringLiteral("path")].toString(),
                          file[QStringLiteral("name")].toString()});
        }
    }
    return table.toString();
}

QString textReport(const QJsonObject &structure)
{
    const QString file = structure[QStringLiteral("structureFile")].toString();
    TextTable summary({QStringLiteral("Root"), orDash(structure[QStringLiteral("root")].toString())});
    summary.addRow({QStringLiteral("Structure file"),
                    structure[QStringLiteral("structureFileExists")].toBool()
                        ? file
                        : file + QStringLiteral(" (missing: no fixed folders)")});
    summary.addRow({QStringLiteral("Default folder"),
                    orDash(structure[QStringLiteral("defaultFolder")].toString())});
    return summary.toString() + u'\n' + keyWordTable(structure[QStringLiteral("keyWords")].toArray())
        + u'\n' + preloadedTable(structure[QStringLiteral("preloadedFolders")].toArray()) + u'\n'
        + preloadedFileTable(structure[QStringLiteral("preloadedFolders")].toArray());
}

} // namespace

int runFoldersCommand(QTextStream &out, const Request &request)
{
    const QJsonObject structure = describeStructure();
    return printReport(out, request, structure, textReport);
}
