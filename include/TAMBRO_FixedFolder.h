// The phone's fixed folder structure: which folders exist under the file
// manager's root, as the folder structure file describes them, and the
// factory's read-only content under the preload root shown among them.
#pragma once

#include "kivtambro_export.h"

#include <QList>
#include <QString>
#include <QStringList>

// How one fixed folder is shown.
struct FixedFolder
{
    QString bigIcon; // thumbnail-size icon file name
    QString smallIcon; // list-size icon file name
    QString displayName;
    QString absolutePath; // only filled when listing a folder's fixed subfolders
};

class KIVTAMBRO_EXPORT TAMBRO_FixedFolder
{
public:
    // Absolute root of the file manager's folder tree, without trailing slash:
    // TAMBRO_DATA_PATH as the library found it at load, trimmed.
    static QString m_sFMRootPath;

    // Opens the folder structure file and creates the fixed folders of its
    // key words. Only the first call does anything, even when it fails;
    // every query of the folder structure calls it first.
    static void initialize();

    // --- Fixed folders ----------------------------------------------------

    // The folder for a key word ("image", "voice", "video", ...): its entry,
    // else its pseudo key word's, else the default folder; made, with every
    // missing folder above it, when missing. Text from a "/" at index 1 on
    // is dropped: "image/x" asks for "image".
    static QString getPathByKey(const QString &key);
    // The default folder, where content without a key word of its own goes:
    // the root when the structure names none. Creates nothing.
    static QString getDefaultFolder();
    // Fills the folder's icons and display name (not its absolutePath) from
    // the structure: the generic folder icons and the path's last component
    // stand in for what the structure leaves out. With absolute true the path
    // is a real path, else a group name of the structure file; false, folder
    // untouched, for an absolute path outside the root.
    static bool getFolder(const QString &path, FixedFolder &folder, bool absolute);
    // Whether the structure describes the folder, a real path under the root;
    // never the root itself nor preloaded content.
    static bool isFixedFolder(const QString &path);
    // The folder's fixed subfolders in display order, each with its
    // absolutePath: up to the first missing "subN" entry, preloaded ones only
    // when they are on disk. A user's folder that bears one's display name is
    // first renamed aside to the name followed by ".1" (".2", ... the first
    // free), so that the names shown stay unique; nothing is ever replaced.
    // The one list of the process, refilled by every call; null when the
    // folder has no fixed subfolders.
    static const QList<FixedFolder> *getFixedFolderList(const QString &folder);
    // Whether a fixed subfolder of the folder is shown under the name (blanks
    // around it ignored, case counts).
    static bool isFixedFolderName(const QString &folder, const QString &name);
    // Whether folder/name is the path of a fixed subfolder, case ignored.
    static bool isFixedFolderNoCaseSensitive(const QString &folder, const QString &name);
    // Appends the key words of the folder's invisible links to links; false
    // when the folder has none.
    static bool getInvLink(const QString &folder, QStringList &links);

    // --- Preloaded content under /usr/data_resource ------------------------

    // True for any path other than the preload root that starts with it,
    // even without a "/" after it.
    static bool isPreloadFolder(const QString &path);
    static bool isPreloadFolderRoot(const QString &path);
    // True when the preload tag "//ZELK_PRELOAD:" occurs anywhere in the text.
    static bool hasPreloadFolderTag(const QString &text);
    // The real path and display name of the folder in which a preloaded
    // folder is shown. False, outputs untouched, for a path outside the
    // preloaded content; false with an empty parentPath when the folder
    // structure names no parent.
    static bool getPreloadFolderParent(const QString &path, QString &parentPath,
                                       QString &parentName);
    // The display name of a preloaded file: its translated base name, with its
    // extension when keepExtension is true. False, name untouched, for a path
    // outside the preloaded content.
    static bool trPreloadFile(const QString &path, QString &name, bool keepExtension);
};

KIVTAMBRO_BEGIN_C_EXPORTS
// getFolder(path, folder, true).
KIVTAMBRO_EXPORT bool TAMBRO_GetFixedFolderInfoByName(const QString &path, FixedFolder &folder);
KIVTAMBRO_EXPORT QString TAMBRO_GetPathByKey(const QString &key);
KIVTAMBRO_END_C_EXPORTS
