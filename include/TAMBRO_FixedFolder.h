/// \file
/// The phone's fixed folder structure: which folders exist under the file
/// manager's root, as the folder structure file describes them, and the
/// factory's read-only content under the preload root shown among them.
#pragma once

#include "kivtambro_export.h"

#include <QList>
#include <QString>
#include <QStringList>

/// How one fixed folder is shown, as TAMBRO_FixedFolder::getFolder and
/// TAMBRO_FixedFolder::getFixedFolderList fill it.
struct FixedFolder
{
    QString bigIcon; ///< thumbnail-size icon file name, for TAMBRO_Global::getIcon
    QString smallIcon; ///< list-size icon file name, for TAMBRO_Global::getIcon
    QString displayName; ///< the name a listing shows, translated
    QString absolutePath; ///< only filled when listing a folder's fixed subfolders
};

/// The fixed folder structure, as static functions over the folder structure
/// file, which is read once per process: /usr/data_resource/tambro/kiv_tambrostruct.cfg
/// when it exists, else /usr/SYSqtapp/tambro/kiv_tambrostruct.cfg (a missing
/// file is an empty structure). Changes to the file are not seen until the
/// next process. Every query opens it first (initialize()), which makes the
/// key words' folders; the structure never names a folder outside the root,
/// so none is made, moved or shown there.
class KIVTAMBRO_EXPORT TAMBRO_FixedFolder
{
public:
    /// Absolute root of the file manager's folder tree, without trailing slash:
    /// TAMBRO_DATA_PATH as the library found it at load, trimmed.
    /// Empty when the variable is unset or holds only slashes. Public as on the
    /// phone: a client that changes it changes every later answer.
    static QString m_sFMRootPath;

    /// Opens the folder structure file and creates the fixed folders of its
    /// key words. Only the first call does anything, even when it fails;
    /// every query of the folder structure calls it first.
    /// The folders are those of the TAMBRO_KEYWORD group's entries, made with
    /// every missing folder from the root down and each handed to the phone's
    /// user (owner 2000, group 233); failures are left as they are, silently.
    static void initialize();

    /// \name Fixed folders
    /// @{

    /// The folder for a key word ("image", "voice", "video", ...): its entry,
    /// else its pseudo key word's, else the default folder; made, with every
    /// missing folder above it, when missing. Text from a "/" at index 1 on
    /// is dropped: "image/x" asks for "image".
    /// A key that begins with "/" is taken whole, so it names nothing; an
    /// unknown key gives the default folder, made too when missing. Blanks
    /// around an entry in the file are dropped. Looks at the disk once.
    static QString getPathByKey(const QString &key);
    /// The default folder, where content without a key word of its own goes:
    /// the root when the structure names none. Creates nothing.
    /// The root too when the entry would lead outside the root. Reads no file
    /// once the structure is open.
    static QString getDefaultFolder();
    /// Fills the folder's icons and display name (not its absolutePath) from
    /// the structure: the generic folder icons and the path's last component
    /// stand in for what the structure leaves out. With absolute true the path
    /// is a real path, else a group name of the structure file; false, folder
    /// untouched, for an absolute path outside the root.
    /// The preload root itself is outside the root; preloaded content and the
    /// root are looked up by their real path either way. As on the phone, the
    /// root is found anywhere in the path, and the root's length is cut from
    /// the path's start: "/x" followed by the root is read as the group of the
    /// root's last two characters. Reads no file once the structure is open.
    static bool getFolder(const QString &path, FixedFolder &folder, bool absolute);
    /// Whether the structure describes the folder, a real path under the root;
    /// never the root itself nor preloaded content.
    /// False for a path outside the root. Reads no file once the structure is
    /// open; whether the folder exists is not looked at.
    static bool isFixedFolder(const QString &path);
    /// The folder's fixed subfolders in display order, each with its
    /// absolutePath: up to the first missing "subN" entry, preloaded ones only
    /// when they are on disk. A user's folder that bears one's display name is
    /// first renamed aside to the name followed by ".1" (".2", ... the first
    /// free), so that the names shown stay unique; nothing is ever replaced.
    /// The one list of the process, refilled by every call; null when the
    /// folder has no fixed subfolders.
    /// Null for a folder that is neither under the root nor preloaded content,
    /// and when its group gives no "sub_num" of 1 or more; an empty list when none of
    /// the entries can be shown. The pointer stays valid, and the list is
    /// refilled in place by the next call. Looks at the disk for every entry
    /// (a preloaded folder's existence, a name to free), and may rename.
    static const QList<FixedFolder> *getFixedFolderList(const QString &folder);
    /// Whether a fixed subfolder of the folder is shown under the name (blanks
    /// around it ignored, case counts).
    /// Calls getFixedFolderList(), with its renames and its refill of the list.
    static bool isFixedFolderName(const QString &folder, const QString &name);
    /// Whether folder/name is the path of a fixed subfolder, case ignored.
    /// Blanks around the joined path are ignored. Calls getFixedFolderList(),
    /// with its renames and its refill of the list.
    static bool isFixedFolderNoCaseSensitive(const QString &folder, const QString &name);
    /// Appends the key words of the folder's invisible links to links; false
    /// when the folder has none.
    /// The links are the entries "invlink_key1" up to the group's
    /// "invlink_num", in number order, empty ones skipped; false when the
    /// group gives no "invlink_num" of 1 or more (true then even when no entry
    /// is set), and for a folder outside the root or preloaded content.
    /// Nothing is removed from links.
    static bool getInvLink(const QString &folder, QStringList &links);

    /// @}

    /// \name Preloaded content under /usr/data_resource
    /// The factory's read-only folders, named in the structure file with the
    /// tag "//ZELK_PRELOAD:" in place of the preload root. These tell paths
    /// apart by their text alone, case counting, and look at no disk.
    /// @{

    /// True for any path other than the preload root that starts with it,
    /// even without a "/" after it.
    /// "/usr/data_resourcex" is preloaded content; "/x/usr/data_resource/a" is
    /// not.
    static bool isPreloadFolder(const QString &path);
    /// True for exactly the preload root, "/usr/data_resource", without a
    /// trailing "/".
    static bool isPreloadFolderRoot(const QString &path);
    /// True when the preload tag "//ZELK_PRELOAD:" occurs anywhere in the text.
    static bool hasPreloadFolderTag(const QString &text);
    /// The real path and display name of the folder in which a preloaded
    /// folder is shown. False, outputs untouched, for a path outside the
    /// preloaded content; false with an empty parentPath when the folder
    /// structure names no parent.
    /// The parent is the folder's "parent_path" entry: the root's group, a
    /// tagged path or a path under the root, a tag replaced by position
    /// wherever it stands. The name is the parent's translated name, empty
    /// when the structure gives none: no fallback to the folder's own name.
    /// Reads no file once the structure is open.
    static bool getPreloadFolderParent(const QString &path, QString &parentPath,
                                       QString &parentName);
    /// The display name of a preloaded file: its translated base name, with its
    /// extension when keepExtension is true. False, name untouched, for a path
    /// outside the preloaded content.
    /// The base name ends at the last "." (a name that begins with "." is all
    /// extension); a name without a translation stays as it is, read as
    /// UTF-8. Text only: whether the file exists is not looked at.
    static bool trPreloadFile(const QString &path, QString &name, bool keepExtension);

    /// @}
};

KIVTAMBRO_BEGIN_C_EXPORTS
/// getFolder(path, folder, true): false, folder untouched, for a path outside
/// the root; for callers without the class interface.
KIVTAMBRO_EXPORT bool TAMBRO_GetFixedFolderInfoByName(const QString &path, FixedFolder &folder);
/// TAMBRO_FixedFolder::getPathByKey(key): the key word's folder, made when
/// missing; the default folder for an unknown key.
KIVTAMBRO_EXPORT QString TAMBRO_GetPathByKey(const QString &key);
KIVTAMBRO_END_C_EXPORTS
