// Disk and folder usage on trees built by the test, on a bare phone.
#include <TAMBRO_FixedFolder.h>
#include <TAMBRO_Global.h>

#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <QTest>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace {

constexpr qint64 FiveGiB = 5LL << 30;

void makeFile(const QString &path, qint64 size)
{
    QFile file(path);
    QVERIFY(file.open(QIODevice::WriteOnly) && file.resize(size)); // sparse
}

// "size files/folders ownFiles/ownFolders"
QString usageOf(const QString &path)
{
    const TAMBRO_ITEM_COUNT all = TAMBRO_Global::getNum(path, true);
    const TAMBRO_ITEM_COUNT own = TAMBRO_Global::getNum(path, false);
    return QStringLiteral("%1 %2/%3 %4/%5").arg(TAMBRO_Global::getSize(path)).arg(all.files).arg(all.folders)
        .arg(own.files).arg(own.folders);
}

} // namespace

class TestDiskUsage : public QObject
{
    Q_OBJECT

    QTemporaryDir m_dir;
    int m_deepLevel = 0; // the level of the deep tree's top

    QString path(const QString &relative) const { return m_dir.filePath(relative); }
    QByteArray latin1Folder() const { return QFile::encodeName(path("mixed/")) + "caf\xe9"; }

    // The deep tree: one folder per level down to level 32, each holding a
    // byte (hidden in the last, which getNum's order must not matter for);
    // the last holds two too-deep folders, one going on to 40.
    void makeDeepTree()
    {
        m_deepLevel = TAMBRO_Global::getFolderLevel(path("deep"));
        QString folder = path("deep");
        for (int level = m_deepLevel; level < 32; ++level, folder += "/d") {
            QVERIFY(QDir().mkpath(folder));
            makeFile(folder + "/f", 1);
        }
        QVERIFY(QDir().mkpath(folder + "/y"));
        makeFile(folder + "/.f", 1);
        for (int level = 33; level <= 40; ++level) {
            folder += "/x";
            QVERIFY(QDir().mkpath(folder));
            if (level > 34)
                makeFile(folder + "/f", 1);
        }
    }

private Q_SLOTS:
    void initTestCase()
    {
        QVERIFY(m_dir.isValid());
        for (const auto &[file, size] : {std::pair{"mixed/a.txt", 10}, {"mixed/.hidden", 100},
                                         {"mixed/.hiddendir/x", 1000}, {"mixed/sub/b", 5}}) {
            QVERIFY(QDir().mkpath(QFileInfo(path(file)).path()));
            makeFile(path(file), size);
        }
        QVERIFY(QFile::link("a.txt", path("mixed/link")) && QFile::link("sub", path("mixed/dirlink"))
                && QFile::link(".", path("mixed/loop")));
        QCOMPARE(mkfifo(QFile::encodeName(path("mixed/fifo")).constData(), 0644), 0);
        // Such names do not survive decoding: made and removed by their bytes.
        QCOMPARE(mkdir(latin1Folder().constData(), 0755), 0);
        const int fd = open((latin1Folder() + "/c").constData(), O_WRONLY | O_CREAT, 0644);
        QVERIFY(fd >= 0 && ftruncate(fd, 7) == 0 && close(fd) == 0);
        QVERIFY(QDir().mkpath(path("big")));
        makeFile(path("big/huge"), FiveGiB);
        makeDeepTree();
    }

    void cleanupTestCase()
    {
        unlink((latin1Folder() + "/c").constData());
        rmdir(latin1Folder().constData());
    }

    void usage_data()
    {
        QTest::addColumn<QString>("relative"); // to the test's folder
        QTest::addColumn<QString>("expected");

        const int chain = 32 - m_deepLevel; // folders below the top down to level 32
        const QString deep = QStringLiteral("%1 %2/%3 1/1").arg(chain + 1).arg(chain).arg(chain + 1);
        QTest::newRow("hidden bytes counted, hidden names not; links, FIFO, other bytes") << "mixed" << "1122 3/2 1/2";
        QTest::newRow("a file: its size, no counts") << "mixed/a.txt" << "10 0/0 0/0";
        QTest::newRow("missing") << "none" << "0 0/0 0/0";
        QTest::newRow("large file: 64 bits inside a folder") << "big" << "5368709120 1/0 1/0";
        QTest::newRow("large file alone: cut to 32 bits") << "big/huge" << "1073741824 0/0 0/0";
        QTest::newRow("too-deep folders left out; listing ends at the first") << "deep" << deep;
        QTest::newRow("a too-deep folder itself: its subfolders left out")
            << "deep" + QString("/d").repeated(chain) + "/x" << "0 0/1 0/1";
        QTest::newRow("a tree of links to itself") << "mixed/dirlink" << "5 1/0 1/0";
    }

    void usage()
    {
        QFETCH(QString, relative);
        QFETCH(QString, expected);
        QCOMPARE(usageOf(path(relative)), expected);
    }

    void diskSize()
    {
        double available = -1;
        double total = -1;
        QVERIFY(!TAMBRO_Global::getDiskSize(path("none"), available, total));
        QCOMPARE(available + total, 0.0);
        // Preloaded folders, present or not, are measured at the root: the bare phone's memory.
        QVERIFY(QDir().mkpath(TAMBRO_FixedFolder::m_sFMRootPath));
        QVERIFY(TAMBRO_Global::getDiskSize("/usr/data_resource/none", available, total));
        QCOMPARE(total, 4.0 * 1024 * 1024);
        QVERIFY(available <= total);
    }

    void permissions_data()
    {
        QTest::addColumn<int>("mode"); // -1: missing
        QTest::addColumn<bool>("readOnly");

        QTest::newRow("read only") << 0444 << true;
        QTest::newRow("owner reads and writes") << 0644 << false;
        QTest::newRow("write only") << 0200 << true;
        QTest::newRow("others' bits not looked at") << 0066 << true;
        QTest::newRow("missing") << -1 << false;
    }

    void permissions()
    {
        QFETCH(int, mode);
        QFETCH(bool, readOnly);
        const QString file = path(QString("mode-%1").arg(mode));
        if (mode >= 0) {
            makeFile(file, 0);
            QCOMPARE(chmod(QFile::encodeName(file).constData(), mode), 0);
        }
        QCOMPARE(TAMBRO_Global::isReadOnly(file), readOnly);
        QVERIFY(TAMBRO_Global::chmodW(file));
        if (mode >= 0)
            QCOMPARE(QFileInfo(file).permissions() & 0x7777, QFileDevice::Permissions(0x7777));
    }
};

QTEST_GUILESS_MAIN(TestDiskUsage)
#include "tst_disk_usage.moc"
