// Reading the folder structure file and making the fixed folders, once per
// process: by default on a phone whose preload root and system folder both
// hold a structure file.
#include <TAMBRO_FixedFolder.h>

#include "scenarios.h"

#include <QDir>
#include <QFileInfo>
#include <QTest>

#include <map>
#include <sys/stat.h>
#include <unistd.h>

namespace {

// The phones' data_path: a folder that does not exist until the library makes it.
const QString Root = QStringLiteral("/kivlocal/download/tambro/root");

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

class TestFolderStructure : public QObject
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
};

KIVTAMBRO_SCENARIO_MAIN(
    TestFolderStructure,
    {{"systemFileIsTheFallback", {QStringLiteral(SYSTEM_STRUCTURE_DEVICE), {}}},
     {"noStructureFileMakesNoFolder", {QStringLiteral(KIVTAMBRO_BARE_DEVICE), {}}},
     {"dataPath:trimmed of blanks and slashes", {QString(), {"TAMBRO_DATA_PATH= /kivlocal/download/tambro/root/// "}}},
     {"dataPath:lone slash: empty", {QString(), {"TAMBRO_DATA_PATH=/"}}},
     {"dataPath:unset: empty", {QString(), {"-TAMBRO_DATA_PATH"}}}},
    QStringLiteral(STRUCTURE_DEVICE))
#include "tst_folder_structure.moc"
