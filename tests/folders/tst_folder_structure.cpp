// Reading the folder structure file and making the fixed folders. Each
// scenario runs in a process of its own, on a phone chosen by CTest, because
// the library reads the file and makes the folders only once per process.
#include <TAMBRO_FixedFolder.h>

#include <QDir>
#include <QFileInfo>
#include <QTest>

#include <sys/inotify.h>
#include <unistd.h>

namespace {

// The phones' data_path: a folder that does not exist until the library makes it.
const QString Root = QStringLiteral("/kivlocal/download/tambro/root");

QStringList foldersIn(const QString &path)
{
    return QDir(path).entryList(QDir::Dirs | QDir::NoDotAndDotDot, QDir::Name);
}

// The names created in a folder, in the order the kernel saw them.
class CreationWatch
{
public:
    explicit CreationWatch(const QString &folder)
        : m_fd(inotify_init1(IN_NONBLOCK)),
          m_watch(inotify_add_watch(m_fd, QFile::encodeName(folder).constData(), IN_CREATE))
    {
    }
    ~CreationWatch() { ::close(m_fd); }

    bool isValid() const { return m_fd >= 0 && m_watch >= 0; }

    QStringList created() const
    {
        QStringList names;
        alignas(inotify_event) char buffer[64 * 1024];
        ssize_t length = 0;
        while ((length = ::read(m_fd, buffer, sizeof buffer)) > 0) {
            for (char *p = buffer; p < buffer + length;) {
                const auto *event = reinterpret_cast<const inotify_event *>(p);
                names << QFile::decodeName(event->name);
                p += sizeof(inotify_event) + event->len;
            }
        }
        return names;
    }

private:
    int m_fd;
    int m_watch;
};

} // namespace

class TestFolderStructure : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void keyWordFoldersAreMadeInKeyOrder()
    {
        QVERIFY(QDir().mkpath(Root));
        const CreationWatch watch(Root);
        QVERIFY(watch.isValid());
        TAMBRO_FixedFolder::initialize();
        // The file lists zeta, alpha, voice, deep, default: folders follow the keys.
        QCOMPARE(watch.created(), (QStringList{"alpha", "a", "others", "voice ", "zeta"}));
    }

    void everyMissingComponentIsMadeForThePhonesUser()
    {
        QVERIFY2(!QFileInfo::exists(Root), "nothing is made when the library is loaded");
        TAMBRO_FixedFolder::initialize();
        const QStringList made = {Root, Root + "/a", Root + "/a/b", Root + "/a/b/c",
                                  Root + "/alpha", Root + "/others", Root + "/zeta"};
        for (const QString &path : made)
            QVERIFY2(QFileInfo(path).isDir(), qPrintable(path));
        if (::getuid() != 0)
            QSKIP("handing folders over needs root");
        for (const QString &path : made) {
            QCOMPARE(QFileInfo(path).ownerId(), 2000u);
            QCOMPARE(QFileInfo(path).groupId(), 233u);
        }
        // Above the root nothing is touched.
        QCOMPARE(QFileInfo(QStringLiteral("/kivlocal/download/tambro")).ownerId(), 0u);
    }

    void trailingBlankOfAValueIsPartOfTheName()
    {
        TAMBRO_FixedFolder::initialize();
        QVERIFY(QFileInfo(Root + "/voice ").isDir());
        QVERIFY(!QFileInfo::exists(Root + "/voice"));
    }

    void secondInitializeDoesNothing()
    {
        TAMBRO_FixedFolder::initialize();
        QVERIFY(QDir().rmdir(Root + "/zeta"));
        TAMBRO_FixedFolder::initialize();
        QVERIFY(!QFileInfo::exists(Root + "/zeta"));
    }

    void pseudoKeyWordsAreNotMade()
    {
        TAMBRO_FixedFolder::initialize();
        QVERIFY(QFileInfo(Root + "/alpha").isDir());
        QVERIFY(!QFileInfo::exists(Root + "/alpha/camera"));
    }

    void preloadRootFileIsPreferred()
    {
        TAMBRO_FixedFolder::initialize();
        QVERIFY(QFileInfo(Root + "/alpha").isDir());
        QVERIFY(!QFileInfo::exists(Root + "/second"));
        QCOMPARE(TAMBRO_FixedFolder::getDefaultFolder(), Root + "/others");
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
        // Every look-up answers its default.
        QCOMPARE(TAMBRO_FixedFolder::getDefaultFolder(), root);
        FixedFolder folder;
        QVERIFY(TAMBRO_FixedFolder::getFolder(root + "/audio", folder, true));
        QCOMPARE(folder.displayName, QStringLiteral("audio"));
        QCOMPARE(folder.bigIcon, QStringLiteral("fm_folder_thb.gif"));
    }

    void rootIsTrimmedOfBlanksAndSlashes()
    {
        QCOMPARE(qgetenv("TAMBRO_DATA_PATH"), QByteArray(" /kivlocal/download/tambro/root/// "));
        QCOMPARE(TAMBRO_FixedFolder::m_sFMRootPath, Root);
        TAMBRO_FixedFolder::initialize();
        QVERIFY(QFileInfo(Root + "/alpha").isDir());
    }

    void loneSlashGivesAnEmptyRoot()
    {
        QVERIFY(TAMBRO_FixedFolder::m_sFMRootPath.isEmpty());
        // Relative paths then stand for themselves; "/" cannot be written
        // here, which the library takes silently.
        TAMBRO_FixedFolder::initialize();
        QCOMPARE(TAMBRO_FixedFolder::getDefaultFolder(), QStringLiteral("/others"));
    }

    void unsetRootIsEmpty()
    {
        QVERIFY(!qEnvironmentVariableIsSet("TAMBRO_DATA_PATH"));
        QVERIFY(TAMBRO_FixedFolder::m_sFMRootPath.isEmpty());
        QCOMPARE(TAMBRO_FixedFolder::getDefaultFolder(), QStringLiteral("/others"));
    }
};

QTEST_GUILESS_MAIN(TestFolderStructure)
#include "tst_folder_structure.moc"
