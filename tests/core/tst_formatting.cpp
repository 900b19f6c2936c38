// Sizes, dates and durations as the phone writes them, a table each; and disk
// and folder usage on trees built by the test, on a bare phone.
#include <TAMBRO_FixedFolder.h>
#include <TAMBRO_Global.h>

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <QTest>
#include <QTranslator>

#include <climits>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

using G = TAMBRO_Global;

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

class TestFormatting : public QObject
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
        // Such names do not survive decoding: made by their bytes, and left to
        // the sandbox's /tmp, which goes with it.
        QCOMPARE(mkdir(latin1Folder().constData(), 0755), 0);
        const int fd = open((latin1Folder() + "/c").constData(), O_WRONLY | O_CREAT, 0644);
        QVERIFY(fd >= 0 && ftruncate(fd, 7) == 0 && close(fd) == 0);
        QVERIFY(QDir().mkpath(path("big")));
        makeFile(path("big/huge"), FiveGiB);
        makeDeepTree();
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
    void sizes_data()
    {
        QTest::addColumn<double>("size");
        QTest::addColumn<int>("decimals");
        QTest::addColumn<QString>("text");

        QTest::newRow("last byte count, never with decimals") << 1023.0 << 2 << "1023 B";
        QTest::newRow("first kilobyte") << 1024.0 << 1 << "1.0 KB";
        QTest::newRow("rounded value picks MB") << 1048535.0 << 1 << "1.0 MB";
        QTest::newRow("more decimals keep KB") << 1048535.0 << 2 << "1023.96 KB";
        QTest::newRow("no decimals: 1023.5 KB is MB") << 1048064.0 << 0 << "1 MB";
        QTest::newRow("no decimals: just below stays KB") << 1048063.0 << 0 << "1023 KB";
        QTest::newRow("MB text is the unrounded value") << 1572864.0 << 3 << "1.500 MB";
        QTest::newRow("negative decimals: text unrounded, six places") << 1027072.0 << -1 << "1003.000000 KB";
        QTest::newRow("decimals -128 are six too, not shortest") << 1027072.0 << -128 << "1003.000000 KB";
        QTest::newRow("most decimals: 17 written, unit of their NaN rounding") << 1572864.0 << INT_MAX << "1536.00000000000000000 KB";
        QTest::newRow("no unit above MB") << 1073741824.0 << 1 << "1024.0 MB";
        QTest::newRow("NaN takes the kilobyte path") << qQNaN() << 1 << "nan KB";
        QTest::newRow("infinity") << qInf() << 1 << "inf MB";
        QTest::newRow("minus infinity") << -qInf() << 1 << "-inf B";
    }

    void sizes()
    {
        QFETCH(double, size);
        QFETCH(int, decimals);
        QFETCH(QString, text);
        QCOMPARE(G::uintSizeToGbMbStr(size, decimals), text);
    }

    // The details view's one decimal; the title's count before its size,
    // unsigned; dates padded to their widths, with blanks for the year.
    void detailsTitleAndDates()
    {
        QCOMPARE(G::getDetailViewSizeStr(1048535), "1.0 MB");
        QCOMPARE(G::getMultiSelectTitle(2048, 3), "3 files selected - Total 2.0 KB");
        QCOMPARE(G::getMultiSelectTitle(10, 4294967295u), "4294967295 files selected - Total 10 B");
        QCOMPARE(G::convertDateTime({{2007, 3, 5}, {9, 4, 0}}), "2007-03-05 09:04:00");
        QCOMPARE(G::convertDateTime({{999, 12, 31}, {23, 59, 59}}), " 999-12-31 23:59:59");
        QCOMPARE(G::convertDateTime({{10000, 1, 1}, {0, 0}}), "10000-01-01 00:00:00");
    }

    void durations_data()
    {
        QTest::addColumn<int>("milliseconds");
        QTest::addColumn<QString>("text");

        QTest::newRow("below half a second") << 499 << "00:00";
        QTest::newRow("half a second rounds up") << 500 << "00:01";
        QTest::newRow("last without hours") << 3599499 << "59:59";
        QTest::newRow("first with hours") << 3599500 << "01:00:00";
        QTest::newRow("more than 99 hours") << 360000000 << "100:00:00";
        QTest::newRow("negative wraps unsigned") << -501 << "1193:02:47";
        QTest::newRow("rounding wraps past zero") << -1 << "00:00";
    }

    void durations()
    {
        QFETCH(int, milliseconds);
        QFETCH(QString, text);
        QCOMPARE(G::convertTime(milliseconds), text);
    }

    void germanCatalogue()
    {
        QTranslator german;
        QVERIFY(german.load(QStringLiteral("kivtambro_base_de"), QStringLiteral(":/kivtambro-base/i18n")));
        QCoreApplication::installTranslator(&german);
        QCOMPARE(G::getMultiSelectTitle(3.0 * 1048576, 2), "2 Dateien ausgewählt - Gesamt 3.0 MB");
    }
};

QTEST_GUILESS_MAIN(TestFormatting)
#include "tst_formatting.moc"
