// The phone's fixed folder structure: which folders exist under the file
// manager's root, as the folder structure file describes them, and the
// factory's read-only content under the preload root shown among them.
#pragma once

#include "kivtambro_export.h"

#include <QString>

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

    // The default folder, where content without a key word of its own goes:
    // the root when the structure names none. Creates nothing.
    static QString getDefaultFolder();
    // Fills the folder's icons and display name (not its absolutePath) from
    // the structure: the generic folder icons and the path's last component
    // stand in for what the structure leaves out. With absolute true the path
    // is a real path, else a group name of the structure file; false, folder
    // untouched, for an absolute path outside the root.
    static bool getFolder(const QString &path, FixedFolder &folder, bool absolute);

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
