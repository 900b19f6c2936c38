// Reading the folder structure file and making the fixed folders, once per
// process, and the fixed folder queries: key words, subfolder lists, names and
// links. Lists may rename a user's folders: each scenario runs on a phone of its
// own, by default one whose preload root and system folder both hold a
// structure file.
#include <TAMBRO_FixedFolder.h>
#include <TAMBRO_Global.h>

#include "scenarios.h"

#include <QDir>
#include <QDirIterator>
#include <QFileInfo>
#include <QTest>

#include <map>
#include <sys/stat.h>
#include <unistd.h>

namespace {

// The phones' data_path: a folder that does not exist until the library makes it.
const QString Root = QStringLiteral("/kivlocal/download/tambro/root");
const QString Alpha = Root + QStringLiteral("/alpha");

// Every file (or entry) below the folder, by its path relative to the folder.
QStringList filesBelow(const QString &folder, QDir::Filters filter = QDir::Files | QDir::Hidden)
{
    QStringList files;
    QDirIterator it(folder, filter, QDirIterator::Subdirectories);
    while (it.hasNext())
        files << QDir(folder).relativeFilePath(it.next());
    files.sort();
    return files;
}

void writeFile(const QString &path)
{
    QVERIFY(QDir().mkpath(QFileInfo(path).path()));
    QFile file(path);
    QVERIFY(file.open(QIODevice::WriteOnly) && file.write(path.toUtf8()) > 0);
}

// Name, shown name and absolute path of each listed subfolder.
QStringList described(const QList<FixedFolder> *list)
{
    QStringList rows;
    for (const FixedFolder &folder : *list)
        rows << folder.displayName + u'|' + folder.smallIcon + u'|' + folder.absolutePath;
    return rows;
}

QStringList foldersIn(const QString &path)
{
    return QDir(path).entryList(QDir::Dirs | QDir::NoDotAndDotDot, QDir::Name);
}

// The folders of a folder in the order they were made: on the phone's
// storages (tmpfs) every new file takes the next inode number.
QStringList foldersInOrderMade(const QString &path)
{
    std::map<ino_t, QString> byInode;
    for (const QString &name : QDir(path).entryList(QDir::Dirs | QDir::NoDotAndDotDot)) {
        struct stat info;
        if (::stat(QFile::encodeName(path + u'/' + name).constData(), &info) == 0)
            byInode[info.st_ino] = name;
    }
    QStringList names;
    for (const auto &[inode, name] : byInode)
        names << name;
    return names;
}

} // namespace

class TestFixedFolders : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    // The preload root's file lists zeta, alpha, "voice " (its blank is part
    // of the name), deep, default: folders follow the keys, every missing
    // component made. The system's file, with its "second", is not read.
    void keyWordFoldersAreMadeInKeyOrderForThePhonesUser()
    {
        QVERIFY2(!QFileInfo::exists(Root), "nothing is made when the library is loaded");
        TAMBRO_FixedFolder::initialize();
        QCOMPARE(foldersInOrderMade(Root), (QStringList{"alpha", "a", "others", "voice ", "zeta"}));
        QCOMPARE(TAMBRO_FixedFolder::getDefaultFolder(), Root + "/others");
        const QStringList made = {Root, Root + "/a", Root + "/a/b", Root + "/a/b/c",
                                  Root + "/alpha", Root + "/others", Root + "/zeta"};
        for (const QString &path : made)
            QVERIFY2(QFileInfo(path).isDir(), qPrintable(path));
        QVERIFY(!QFileInfo::exists(Root + "/alpha/camera")); // a pseudo key word's
        if (::getuid() != 0)
            QSKIP("handing folders over needs root");
        for (const QString &path : made) {
            QCOMPARE(QFileInfo(path).ownerId(), 2000u);
            QCOMPARE(QFileInfo(path).groupId(), 233u);
        }
        // Above the root nothing is touched.
        QCOMPARE(QFileInfo(QStringLiteral("/kivlocal/download/tambro")).ownerId(), 0u);
    }

    void secondInitializeDoesNothing()
    {
        TAMBRO_FixedFolder::initialize();
        QVERIFY(QDir().rmdir(Root + "/zeta"));
        TAMBRO_FixedFolder::initialize();
        QVERIFY(!QFileInfo::exists(Root + "/zeta"));
    }

    void systemFileIsTheFallback()
    {
        QCOMPARE(foldersIn(Root), QStringList());
        TAMBRO_FixedFolder::initialize();
        QCOMPARE(foldersIn(Root), (QStringList{"second", "system-default"}));
        QCOMPARE(TAMBRO_FixedFolder::getDefaultFolder(), Root + "/system-default");
    }

    void noStructureFileMakesNoFolder()
    {
        const QString root = TAMBRO_FixedFolder::m_sFMRootPath;
        QCOMPARE(root, QStringLiteral("/kivlocal/download/tambro"));
        const QStringList before = foldersIn(root);
        TAMBRO_FixedFolder::initialize();
        TAMBRO_FixedFolder::initialize();
        QCOMPARE(foldersIn(root), before);
        // The default folder is the root.
        QCOMPARE(TAMBRO_FixedFolder::getDefaultFolder(), root);
    }

    // TAMBRO_DATA_PATH as each row's setup gives it. With an empty root,
    // relative paths stand for themselves; "/" cannot be written here, which
    // the library takes silently.
    void dataPath_data()
    {
        QTest::addColumn<QString>("root");
        QTest::newRow("trimmed of blanks and slashes") << Root;
        QTest::newRow("lone slash: empty") << QString();
        QTest::newRow("unset: empty") << QString();
    }

    void dataPath()
    {
        QFETCH(QString, root);
        QCOMPARE(TAMBRO_FixedFolder::m_sFMRootPath, root);
        TAMBRO_FixedFolder::initialize();
        QCOMPARE(TAMBRO_FixedFolder::getDefaultFolder(), root + "/others");
        QVERIFY(root.isEmpty() || QFileInfo(root + "/alpha").isDir());
    }
    void pathByKey_data()
    {
        QTest::addColumn<QString>("key");
        QTest::addColumn<QString>("path");

        QTest::newRow("a slash and more text ask for the key word") << "alpha/x/y" << Alpha;
        QTest::newRow("pseudo key word, made with its folders") << "camera" << Alpha + "/camera";
        QTest::newRow("blanks around the entry are dropped here") << "voice" << Root + "/voice";
        QTest::newRow("a leading slash keeps the key whole") << "/alpha" << Root + "/others";
        QTest::newRow("unknown key word gives the default folder") << "nothing" << Root + "/others";
    }

    void pathByKey()
    {
        QFETCH(QString, key);
        QFETCH(QString, path);
        QCOMPARE(TAMBRO_FixedFolder::getPathByKey(key), path);
        QVERIFY(QFileInfo(path).isDir());
        QCOMPARE(TAMBRO_GetPathByKey(key), path);
    }

    void keyWordShortcutsNameTheirFolders()
    {
        TAMBRO_FixedFolder::initialize();
        QVERIFY(QDir().rmdir(Root + "/others"));
        QCOMPARE(TAMBRO_FixedFolder::getDefaultFolder(), Root + "/others");
        QVERIFY(!QFileInfo::exists(Root + "/others")); // only asking for a key word makes it
        QString name = QStringLiteral("untouched");
        QCOMPARE(TAMBRO_Global::myPhoto(&name), Alpha);
        QCOMPARE(name, QStringLiteral("Alpha Folder"));
        QCOMPARE(TAMBRO_Global::myVideo(nullptr), Root + "/zeta");
        QCOMPARE(TAMBRO_Global::myVoice(&name), Root + "/voice");
        QCOMPARE(name, QStringLiteral("voice"));
    }

    // Up to the first missing entry; absent preloaded content left out.
    void subfolderList()
    {
        const QList<FixedFolder> *list = TAMBRO_FixedFolder::getFixedFolderList(Alpha);
        QVERIFY(list);
        QCOMPARE(described(list),
                 (QStringList{"Camera Roll|fm_folder_small.gif|" + Alpha + "/camera",
                              "Tones|fm_folder_small.gif|/usr/data_resource/tones",
                              "../zeta|fm_folder_small.gif|" + Alpha + "/two"}));
        // One list, refilled by every call.
        QCOMPARE(TAMBRO_FixedFolder::getFixedFolderList(Root), list);
        QCOMPARE(described(list), (QStringList{"Alpha Folder|alpha_small.gif|" + Alpha,
                                               "Zeta Folder|fm_folder_small.gif|" + Root + "/zeta"}));
        QVERIFY(!TAMBRO_FixedFolder::getFixedFolderList(Root + "/zeta")); // no sub_num
        QVERIFY(!TAMBRO_FixedFolder::getFixedFolderList(QStringLiteral("/elsewhere")));
    }

    void names_data()
    {
        QTest::addColumn<QString>("name");
        QTest::addColumn<bool>("displayName");
        QTest::addColumn<bool>("pathIgnoringCase");

        QTest::newRow("display name, blanks around ignored") << " Camera Roll " << true << false;
        QTest::newRow("display name in other case") << "camera roll" << false << false;
        QTest::newRow("folder name in other case") << "CAMERA" << false << true;
        QTest::newRow("preloaded content by its display name only") << "Tones" << true << false;
    }

    void names()
    {
        QFETCH(QString, name);
        QFETCH(bool, displayName);
        QFETCH(bool, pathIgnoringCase);
        QCOMPARE(TAMBRO_FixedFolder::isFixedFolderName(Alpha, name), displayName);
        QCOMPARE(TAMBRO_FixedFolder::isFixedFolderNoCaseSensitive(Alpha, name), pathIgnoringCase);
    }

    void fixedFoldersAndLinks()
    {
        QVERIFY(TAMBRO_FixedFolder::isFixedFolder(Alpha));
        for (const QString &other : {Root, Root + "/others", QStringLiteral("/usr/data_resource/tones")}) // others: no group
            QVERIFY2(!TAMBRO_FixedFolder::isFixedFolder(other), qPrintable(other));
        QStringList links{QStringLiteral("kept")};
        QVERIFY(TAMBRO_FixedFolder::getInvLink(Alpha, links));
        QVERIFY(TAMBRO_FixedFolder::getInvLink(Root, links));
        QCOMPARE(links, (QStringList{"kept", "camera", "image", "camera"}));
        QVERIFY(!TAMBRO_FixedFolder::getInvLink(Root + "/zeta", links));
        FixedFolder folder;
        QVERIFY(TAMBRO_GetFixedFolderInfoByName(Alpha, folder) && folder.displayName == u"Alpha Folder");
    }

    // The user's folder bearing a fixed subfolder's display name moves to the
    // first free number, with all it holds; nothing else moves.
    void renamedAsideWithEverything_data()
    {
        QTest::addColumn<bool>("blockedByFile"); // "Camera Roll.1" is a file
        QTest::newRow("first free number") << false;
        QTest::newRow("a file holds the number: nothing moves") << true;
    }

    void renamedAsideWithEverything()
    {
        QFETCH(bool, blockedByFile);
        TAMBRO_FixedFolder::initialize();
        const QString named = Alpha + "/Camera Roll";
        for (const QString &file : {named + "/a.txt", named + "/inner/b.txt", named + ".2/d.txt",
                                    blockedByFile ? named + ".1" : named + ".1/c.txt", Alpha + "/Tones/e.txt"})
            writeFile(file);
        const QStringList held = filesBelow(named);
        const QStringList all = filesBelow(Root);

        QVERIFY(TAMBRO_FixedFolder::getFixedFolderList(Alpha));

        QCOMPARE(filesBelow(Root).size(), all.size());
        QCOMPARE(filesBelow(blockedByFile ? named : named + ".3"), held);
        QCOMPARE(QFileInfo::exists(named), blockedByFile);
        QCOMPARE(filesBelow(named + ".2"), QStringList{"d.txt"});
        QCOMPARE(filesBelow(Alpha + "/Tones.1"), QStringList{"e.txt"}); // preloaded content's name too
        QVERIFY(QFileInfo(Root + "/zeta").isDir()); // "../zeta" is no name to free
    }

    // Folders that lead out of the root (to the card, where user folders bear
    // their display names) are absent: nothing is made or moved there.
    void foldersOutsideTheRootAreAbsent()
    {
        const QString root = TAMBRO_FixedFolder::m_sFMRootPath;
        QCOMPARE(TAMBRO_FixedFolder::getPathByKey("escape"), root + "/pseudo");
        QCOMPARE(TAMBRO_FixedFolder::getPathByKey("image"), root);
        QCOMPARE(described(TAMBRO_FixedFolder::getFixedFolderList(root)),
                 QStringList{"kept|fm_folder_small.gif|" + root + "/in/../kept"});
        QString parent;
        QVERIFY(!TAMBRO_FixedFolder::getPreloadFolderParent("/usr/data_resource/shown", parent, parent));
        QCOMPARE(filesBelow("/mmc/mmca1", QDir::AllEntries | QDir::NoDotAndDotDot),
                 (QStringList{"Other", "Other/keep.txt", "Victim", "Victim/keep.txt", "Y", "Y/keep.txt"}));
    }

    void readOnlyStorageKeepsEverything()
    {
        const QList<FixedFolder> *list = TAMBRO_FixedFolder::getFixedFolderList(TAMBRO_FixedFolder::m_sFMRootPath);
        QVERIFY(list && list->size() == 2);
        QCOMPARE(filesBelow("/usr/SYSqtapp/tambro/root/Alpha Folder"), QStringList{"keep.txt"}); // not renamed aside
    }
};

KIVTAMBRO_SCENARIO_MAIN(
    TestFixedFolders,
    {{"systemFileIsTheFallback", {QStringLiteral(SYSTEM_STRUCTURE_DEVICE), {}}},
     {"noStructureFileMakesNoFolder", {QStringLiteral(KIVTAMBRO_BARE_DEVICE), {}}},
     {"dataPath:trimmed of blanks and slashes", {QString(), {"TAMBRO_DATA_PATH= /kivlocal/download/tambro/root/// "}}},
     {"dataPath:lone slash: empty", {QString(), {"TAMBRO_DATA_PATH=/"}}},
     {"dataPath:unset: empty", {QString(), {"-TAMBRO_DATA_PATH"}}},
     {"readOnlyStorageKeepsEverything", {QString(), {"TAMBRO_DATA_PATH=/usr/SYSqtapp/tambro/root"}}},
     {"foldersOutsideTheRootAreAbsent", {QStringLiteral(HOSTILE_STRUCTURE_DEVICE), {}}}},
    QStringLiteral(STRUCTURE_DEVICE))
#include "tst_fixed_folders.moc"
