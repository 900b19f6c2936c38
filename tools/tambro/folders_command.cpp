#include "folders_command.h"

#include "folder_reader.h"
#include "text_table.h"

#include "printable/printable_text.h"
#include "structurefile/folder_structure_file.h"

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

namespace {

// Only what the library does not tell, which key words there are, is read
// from the folder structure file here, by the format the library reads it
// by; every answer about them comes from the library.
using Tambro::KeyWordGroup;
using Tambro::PseudoKeyWordGroup;

// A folder of the file, as written (blanks kept), under the root.
QString absoluteFolderPath(const QString &relativePath)
{
    return TAMBRO_FixedFolder::m_sFMRootPath + relativePath;
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

// The key words as the file lists them, with whether each folder the library
// may give them existed before its first look at the structure, which makes
// folders: the path as written and trimmed (what the library takes).
QList<KeyWord> readKeyWords(const ZConfig &structure)
{
    QList<KeyWord> keyWords;
    for (const auto &[group, pseudo] : {std::pair{KeyWordGroup, false}, std::pair{PseudoKeyWordGroup, true}}) {
        QMap<QString, QString> entries;
        structure.getGroupEntriesKeyList(QLatin1String(group), entries);
        for (auto it = entries.cbegin(); it != entries.cend(); ++it)
            keyWords.append({it.key(), pseudo, it.value(), QString(), false});
    }
    return keyWords;
}

QSet<QString> existingCandidates(const QList<KeyWord> &keyWords)
{
    QSet<QString> existing;
    for (const KeyWord &keyWord : keyWords) {
        for (const QString &relative : {keyWord.relativePath, keyWord.relativePath.trimmed()}) {
            if (isFolder(absoluteFolderPath(relative)))
                existing.insert(absoluteFolderPath(relative));
        }
    }
    return existing;
}

// Where the library puts each key word's content; it makes missing folders.
void findKeyWordFolders(QList<KeyWord> &keyWords)
{
    const QSet<QString> existing = existingCandidates(keyWords);
    for (KeyWord &keyWord : keyWords) {
        keyWord.path = TAMBRO_FixedFolder::getPathByKey(keyWord.key);
        keyWord.existedBefore = existing.contains(keyWord.path);
    }
}

// The preloaded folders shown in the root's and the key words' folders, or
// deeper, in the order they are first listed. Absent ones are not listed.
QStringList preloadedFolders(const QList<KeyWord> &keyWords)
{
    QStringList pending = {TAMBRO_FixedFolder::m_sFMRootPath};
    for (const KeyWord &keyWord : keyWords)
        pending << keyWord.path;
    QSet<QString> seen(pending.cbegin(), pending.cend());
    QStringList preloaded;
    for (qsizetype next = 0; next < pending.size(); ++next) {
        const QList<FixedFolder> *subfolders = TAMBRO_FixedFolder::getFixedFolderList(pending.at(next));
        for (const FixedFolder &subfolder : subfolders ? *subfolders : QList<FixedFolder>()) {
            const QString &folder = subfolder.absolutePath;
            if (seen.contains(folder))
                continue;
            seen.insert(folder);
            (TAMBRO_FixedFolder::isPreloadFolder(folder) ? preloaded : pending) << folder;
        }
    }
    return preloaded;
}

QJsonArray subfolderNames(const QString &folder)
{
    QJsonArray names;
    if (const QList<FixedFolder> *list = TAMBRO_FixedFolder::getFixedFolderList(folder)) {
        for (const FixedFolder &fixed : *list)
            names.append(fixed.displayName);
    }
    return names;
}

QJsonArray invisibleLinks(const QString &folder)
{
    QStringList links;
    TAMBRO_FixedFolder::getInvLink(folder, links);
    return QJsonArray::fromStringList(links);
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
        {QStringLiteral("subfolders"), subfolderNames(keyWord.path)},
        {QStringLiteral("invisibleLinks"), invisibleLinks(keyWord.path)},
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

QJsonObject preloadedFolderObject(const QString &path)
{
    QString parentPath;
    QString parentName;
    TAMBRO_FixedFolder::getPreloadFolderParent(path, parentPath, parentName);
    FixedFolder folder;
    TAMBRO_FixedFolder::getFolder(path, folder, true);
    return QJsonObject{
        {QStringLiteral("group"), Tambro::toPreloadTagForm(path)},
        {QStringLiteral("path"), path},
        {QStringLiteral("name"), folder.displayName},
        {QStringLiteral("parentPath"), parentPath},
        {QStringLiteral("parentName"), parentName},
        {QStringLiteral("files"), preloadedFileObjects(path)},
    };
}

QJsonObject describeStructure()
{
    const QString file = Tambro::folderStructureFilePath();
    // Read before the library's first query creates the key words' folders.
    QList<KeyWord> keyWords = readKeyWords(ZConfig(file, false));
    findKeyWordFolders(keyWords);
    QJsonArray keyWordArray;
    for (const KeyWord &keyWord : keyWords)
        keyWordArray.append(keyWordObject(keyWord));
    QJsonArray preloadedArray;
    for (const QString &folder : preloadedFolders(keyWords))
        preloadedArray.append(preloadedFolderObject(folder));
    const QString &root = TAMBRO_FixedFolder::m_sFMRootPath;
    return QJsonObject{
        {QStringLiteral("root"), root},
        {QStringLiteral("rootSubfolders"), subfolderNames(root)},
        {QStringLiteral("rootInvisibleLinks"), invisibleLinks(root)},
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
    TextTable table({QStringLiteral("PRELOADED FOLDER"), QStringLiteral("PATH"), QStringLiteral("NAME"),
                     QStringLiteral("PARENT"), QStringLiteral("PARENT NAME")});
    for (const QJsonValue &value : folders) {
        const QJsonObject f = value.toObject();
        table.addRow({f[QStringLiteral("group")].toString(), f[QStringLiteral("path")].toString(),
                      f[QStringLiteral("name")].toString(), orDash(f[QStringLiteral("parentPath")].toString()),
                      orDash(f[QStringLiteral("parentName")].toString())});
    }
    return table.toString();
}

QString joined(const QJsonValue &texts)
{
    QStringList list;
    for (const QJsonValue &text : texts.toArray())
        list << text.toString();
    return orDash(list.join(QStringLiteral(", ")));
}

// The fixed folders that have subfolders or invisible links: the root, then
// the key words' folders, each once.
QString subfolderTable(const QJsonObject &structure)
{
    TextTable table({QStringLiteral("FIXED FOLDER"), QStringLiteral("INVISIBLE LINKS"), QStringLiteral("SUBFOLDERS")});
    const auto addRow = [&](const QString &path, const QJsonValue &subfolders, const QJsonValue &links) {
        if (!subfolders.toArray().isEmpty() || !links.toArray().isEmpty())
            table.addRow({path, joined(links), joined(subfolders)});
    };
    addRow(structure[QStringLiteral("root")].toString(), structure[QStringLiteral("rootSubfolders")],
           structure[QStringLiteral("rootInvisibleLinks")]);
    QSet<QString> shown;
    for (const QJsonValue &value : structure[QStringLiteral("keyWords")].toArray()) {
        const QString path = value[QStringLiteral("path")].toString();
        if (!shown.contains(path))
            addRow(path, value[QStringLiteral("subfolders")], value[QStringLiteral("invisibleLinks")]);
        shown.insert(path);
    }
    return table.toString();
}

QString preloadedFileTable(const QJsonArray &folders)
{
    TextTable table({QStringLiteral("PRELOADED FILE"), QStringLiteral("NAME")});
    for (const QJsonValue &folder : folders) {
        for (const QJsonValue &value : folder.toObject()[QStringLiteral("files")].toArray()) {
            const QJsonObject file = value.toObject();
            table.addPrintableRow({printableName(file[QStringLiteral("path")], file[QStringLiteral("pathBytes")]),
                                   printableText(file[QStringLiteral("name")].toString())});
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
        + u'\n' + subfolderTable(structure) + u'\n' + preloadedTable(structure[QStringLiteral("preloadedFolders")].toArray()) + u'\n'
        + preloadedFileTable(structure[QStringLiteral("preloadedFolders")].toArray());
}

} // namespace

int runFoldersCommand(QTextStream &out, const Request &request)
{
    const QJsonObject structure = describeStructure();
    return printReport(out, request, structure, textReport);
}
