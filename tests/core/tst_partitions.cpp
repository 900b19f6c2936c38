// The partition table as built from the mount table and the card driver.
// Each case rewrites the simulated phone and forces a rescan.
#include <TAMBRO_Global.h>

#include "test_phone.h"

#include <QTest>

namespace {

// The journal of a rescan without the standard icons, which it reloads too.
QList<QByteArray> scanJournalLines()
{
    QList<QByteArray> lines = TestPhone::journalLines();
    lines.removeIf([](const QByteArray &line) { return line.contains("RES_ICON_Reader::getIcon"); });
    return lines;
}

QStringList scanJournalCalls()
{
    QStringList calls = TestPhone::journalCalls();
    calls.removeAll(QStringLiteral("RES_ICON_Reader::getIcon"));
    return calls;
}

const QByteArray PhoneLine = "/dev/mtdblock5 /kivlocal/download/tambro jffs2 rw 0 0\n";
const QByteArray CardLine = "/dev/mmca1 /mmc/mmca1 vfat rw,noatime 0 0\n";
const QByteArray MegaSimLine = "/dev/mmcb1 /mmc/megasim1 vfat rw 0 0\n";
const QByteArray ReadyCard = "[card]\nbyte2 = 4\nlabel = KIVCARD\n";

const QString Phone = QStringLiteral("phone|My Files|/kivlocal/d|/dev/mtdblock5|/kivlocal/download/tambro|ready|-");
const QString Card = QStringLiteral("card|Memory Card|KIVCARD|/dev/mmca1|/mmc/mmca1|ready|-");

QString statusOf(int parti)
{
    if (TAMBRO_Global::isCardLocked(parti))
        return QStringLiteral("locked");
    if (TAMBRO_Global::isUnformattedParti(parti))
        return QStringLiteral("unformatted");
    if (TAMBRO_Global::isInvalidParti(parti))
        return QStringLiteral("invalid");
    return QStringLiteral("ready");
}

QString describe(int parti)
{
    static const QStringList kinds = {QStringLiteral("phone"), QStringLiteral("megasim"),
                                      QStringLiteral("card")};
    const int type = TAMBRO_Global::getDeviceCardType(parti);
    const QString path = TAMBRO_Global::getPartiName(parti);
    return QStringList{kinds.value(type), TAMBRO_Global::getPartiShortName(parti),
                       TAMBRO_Global::getPartiLabel(parti), TAMBRO_Global::getPartiDevName(parti),
                       path.isNull() ? QStringLiteral("(null)") : path, statusOf(parti),
                       TAMBRO_Global::writeProtected(parti) ? QStringLiteral("wp")
                                                            : QStringLiteral("-")}
        .join(QLatin1Char('|'));
}

// Every listed partition in number order; numbers must run 1, 2, 3...
QStringList describeTable()
{
    QStringList rows;
    for (int parti = 1; TAMBRO_Global::getDeviceCardType(parti) != -1; ++parti)
        rows.append(describe(parti));
    return rows;
}

void rescan(const QByteArray &mountTable, const QByteArray &device)
{
    TestPhone::setMountTable(mountTable);
    TestPhone::setDevice(device);
    TAMBRO_Global::initMemFlag = false;
    TAMBRO_Global::initMem(0);
}

} // namespace

class TestPartitions : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { TestPhone::startJournal(); }

    void table_data();
    void table();
    void cardState_data();
    void cardState();
    void megaSimName_data();
    void megaSimName();
    void partitionCeiling();
    void unmountedCard();
    void deviceNameMatchesExactly();
    void byTypeQueries();
    void outOfRangeNumbers();
    void fieldWidths();
    void cardDriverCalls();
    void deviceTreeCallsPairUp();
};

void TestPartitions::table_data()
{
    QTest::addColumn<QByteArray>("mountTable");
    QTest::addColumn<QByteArray>("device");
    QTest::addColumn<QStringList>("expected");

    const QString megaSim = QStringLiteral("megasim|Work SIM|/mmc/megasi|/dev/mmcb1|/mmc/megasim1|ready|-");
    const QByteArray namedSim = "[megasim]\nname = Work SIM\n";

    QTest::newRow("phone and card") << PhoneLine + CardLine << ReadyCard << QStringList{Phone, Card};
    QTest::newRow("card listed first is still numbered after the phone")
        << CardLine + PhoneLine << ReadyCard << QStringList{Phone, Card};
    QTest::newRow("MegaSIM sorts between phone and card")
        << CardLine + MegaSimLine + PhoneLine << ReadyCard + namedSim
        << QStringList{Phone, megaSim, Card};
    QTest::newRow("second phone record ignored")
        << PhoneLine + "/dev/other /kivlocal/download/tambro jffs2 rw 0 0\n" << QByteArray()
        << QStringList{Phone};
    QTest::newRow("cards of one kind end in reverse order of discovery")
        << QByteArray("/dev/first /mmc/mmca1 vfat rw 0 0\n/dev/second /mmc/mmca1 vfat rw 0 0\n") << ReadyCard
        << QStringList{QString(Card).replace("/dev/mmca1", "/dev/second"),
                       QString(Card).replace("/dev/mmca1", "/dev/first")};
    QTest::newRow("mount points match exactly")
        << QByteArray("/dev/a /kivlocal/download/tambro/ jffs2 rw 0 0\n/dev/b /mmc/mmca10 vfat rw 0 0\n"
                      "/dev/c /MMC/MMCA1 vfat rw 0 0\n")
        << ReadyCard << QStringList();
    QTest::newRow("label kept as the card has it, name stays Memory Card")
        << CardLine << QByteArray("[card]\nlabel = MY  CARD \n")
        << QStringList{QStringLiteral("card|Memory Card|MY  CARD |/dev/mmca1|/mmc/mmca1|ready|-")};
    QTest::newRow("label cut to eleven bytes")
        << CardLine << QByteArray("[card]\nlabel = ABCDEFGHIJKLMN\n")
        << QStringList{QStringLiteral("card|Memory Card|ABCDEFGHIJK|/dev/mmca1|/mmc/mmca1|ready|-")};
    QTest::newRow("escaped blanks in the mount table are decoded")
        << QByteArray("/dev/my\\040card /mmc/mmca1 vfat rw 0 0\n") << ReadyCard
        << QStringList{QString(Card).replace("/dev/mmca1", "/dev/my card")};
    QTest::newRow("failing card driver hides a mounted card")
        << PhoneLine + CardLine << QByteArray("[card]\ninfo = 0\nstatus = 1\n") << QStringList{Phone};
    QTest::newRow("garbage mount table lists nothing")
        << QByteArray("\x01\x02 not a mount table\n\n#\n   \n") << QByteArray() << QStringList();
    QTest::newRow("empty mount table") << QByteArray() << QByteArray() << QStringList();
    QTest::newRow("table over 1 MiB is refused whole, not read in part")
        << PhoneLine + QByteArray(1 << 20, '#') << QByteArray() << QStringList();
}

void TestPartitions::table()
{
    QFETCH(QByteArray, mountTable);
    QFETCH(QByteArray, device);
    QFETCH(QStringList, expected);

    rescan(mountTable, device);
    QCOMPARE(describeTable(), expected);
    QCOMPARE(TAMBRO_Global::getPartiActNumber(), int(expected.size()));
}

void TestPartitions::cardState_data()
{
    QTest::addColumn<QByteArray>("device");
    QTest::addColumn<QString>("status");
    QTest::addColumn<bool>("writeProtected");

    QTest::newRow("formatted bit set: ready") << QByteArray("byte0 = 0\nbyte2 = 4") << "ready" << false;
    QTest::newRow("no format bits: invalid") << QByteArray("byte0 = 0\nbyte2 = 0") << "invalid" << false;
    QTest::newRow("unformatted bit") << QByteArray("byte0 = 0\nbyte2 = 0x02") << "unformatted" << false;
    QTest::newRow("unformatted wins over formatted") << QByteArray("byte2 = 0x06") << "unformatted" << false;
    QTest::newRow("locked and write-protected") << QByteArray("byte0 = 0x03\nbyte2 = 4") << "locked" << true;
    QTest::newRow("locked wins over unformatted") << QByteArray("byte0 = 0x02\nbyte2 = 0x02") << "locked" << false;
    QTest::newRow("write-protected only") << QByteArray("byte0 = 0x01\nbyte2 = 4") << "ready" << true;
    QTest::newRow("extra flag changes nothing") << QByteArray("byte0 = 0x08\nbyte2 = 4") << "ready" << false;
}

void TestPartitions::cardState()
{
    QFETCH(QByteArray, device);
    QFETCH(QString, status);
    QFETCH(bool, writeProtected);

    rescan(PhoneLine + CardLine, "[card]\n" + device + "\n");
    QCOMPARE(statusOf(2), status);
    QCOMPARE(TAMBRO_Global::writeProtected(2), writeProtected);
    QCOMPARE(TAMBRO_Global::isCardLocked(2), status == QLatin1String("locked"));
    // The phone's own entry never carries a card state.
    QCOMPARE(statusOf(1), QStringLiteral("ready"));
}

void TestPartitions::megaSimName_data()
{
    QTest::addColumn<QByteArray>("device");
    QTest::addColumn<QString>("name");

    QTest::newRow("name from the tree") << QByteArray("name = Work SIM") << "Work SIM";
    QTest::newRow("empty name keeps the default") << QByteArray("name =") << "MegaSIM";
    QTest::newRow("tree fails to start") << QByteArray("initialize = 0\nname = X") << "MegaSIM";
    QTest::newRow("subtree error") << QByteArray("subtree = 5\nname = X") << "MegaSIM";
    QTest::newRow("node not found") << QByteArray("node = 0\nname = X") << "MegaSIM";
    QTest::newRow("value unreadable") << QByteArray("value = 0\nname = X") << "MegaSIM";
    QTest::newRow("non-ASCII name") << QByteArray("name = Télé ✓") << QStringLiteral("Télé ✓");
}

void TestPartitions::megaSimName()
{
    QFETCH(QByteArray, device);
    QFETCH(QString, name);

    rescan(MegaSimLine, "[megasim]\n" + device + "\n");
    QCOMPARE(TAMBRO_Global::getPartiShortName(1), name);
    // The label is the mount point's start, whatever the name.
    QCOMPARE(TAMBRO_Global::getPartiLabel(1), QStringLiteral("/mmc/megasi"));
}

void TestPartitions::partitionCeiling()
{
    QByteArray mountTable = PhoneLine;
    for (int card = 0; card < 11; ++card)
        mountTable += CardLine;
    rescan(mountTable, ReadyCard);
    QCOMPARE(TAMBRO_Global::getPartiActNumber(), 12);
    QCOMPARE(TAMBRO_Global::getMountedPath(2), QStringLiteral("/mmc/mmca1"));

    rescan(mountTable + CardLine, ReadyCard);
    QCOMPARE(TAMBRO_Global::getPartiActNumber(), 0);
    // Every number now lies beyond the count.
    QVERIFY(TAMBRO_Global::getMountedPath(2).isNull());
    QVERIFY(TAMBRO_Global::hasMMCSDCard());
    QCOMPARE(TAMBRO_Global::getDeviceCardType(13), 2);
}

void TestPartitions::unmountedCard()
{
    rescan(PhoneLine, "[card]\nstatus = 1\nlabel = KIVCARD\n");
    QCOMPARE(describeTable(),
             (QStringList{Phone, QStringLiteral("card|Memory Card|KIVCARD||(null)|ready|-")}));
    QVERIFY(TAMBRO_Global::hasMMCSDCard());
    QVERIFY(TAMBRO_Global::isDeviceMounted(2));
    QCOMPARE(TAMBRO_IsDeviceMountedbyNum(2), 1);
    QVERIFY(TAMBRO_Global::getDefaultMMCSDPartition().isNull());
    QVERIFY(TAMBRO_GetDefaultMMCSDPartition().isNull());

    // Only status 1 means inserted; a mounted card is not listed twice.
    rescan(PhoneLine, "[card]\nstatus = 2\n");
    QVERIFY(!TAMBRO_Global::hasMMCSDCard());
    rescan(PhoneLine + CardLine, "[card]\nstatus = 1\n");
    QCOMPARE(TAMBRO_Global::getPartiActNumber(), 2);
}

void TestPartitions::deviceNameMatchesExactly()
{
    rescan(PhoneLine + CardLine, ReadyCard);
    QVERIFY(TAMBRO_Global::isDeviceMounted("/dev/mmca1"));
    QCOMPARE(TAMBRO_IsDeviceMountedbyName("/dev/mmca1"), 1);
    QVERIFY(!TAMBRO_Global::isDeviceMounted("/mmc/mmca1"));
    QVERIFY(!TAMBRO_Global::isDeviceMounted("/dev/mmca"));
    QVERIFY(!TAMBRO_Global::isDeviceMounted("/dev/mmca1 "));
    QCOMPARE(TAMBRO_IsDeviceMountedbyName(nullptr), 0);
    // The unmounted card's device name is empty, and so matches "".
    rescan(QByteArray(), "[card]\nstatus = 1\n");
    QVERIFY(TAMBRO_Global::isDeviceMounted(""));
}

void TestPartitions::byTypeQueries()
{
    rescan(MegaSimLine + CardLine, ReadyCard);
    QCOMPARE(TAMBRO_Global::getPhoneNoi(), -1);
    QVERIFY(!TAMBRO_Global::isDeviceMounted(0));
    QCOMPARE(TAMBRO_IsDeviceMountedbyNum(0), 0);
    QCOMPARE(TAMBRO_IsDeviceMountedbyNum(1), 1);
    QCOMPARE(TAMBRO_Global::getMountedPath(1), QStringLiteral("/mmc/megasim1"));
    QCOMPARE(TAMBRO_Global::getDefaultMMCSDPartition(), QStringLiteral("/mmc/mmca1"));
    QCOMPARE(TAMBRO_GetDefaultMMCSDPartition(), QStringLiteral("/mmc/mmca1"));
    QVERIFY(TAMBRO_Global::getMountedPath(0).isNull());
    QVERIFY(TAMBRO_Global::getMountedPath(-1).isNull());
    QVERIFY(TAMBRO_Global::getMountedPath(3).isNull());
    QVERIFY(TAMBRO_Global::isCards(1));
    QVERIFY(TAMBRO_Global::isCards(2));
    QVERIFY(!TAMBRO_Global::isPhone(1));

    rescan(CardLine + PhoneLine, ReadyCard);
    QCOMPARE(TAMBRO_Global::getPhoneNoi(), 1);
    QCOMPARE(TAMBRO_Global::phoneNoi, -1);
    QVERIFY(TAMBRO_Global::isPhone(1));
    QVERIFY(!TAMBRO_Global::isCards(1));
}

void TestPartitions::outOfRangeNumbers()
{
    rescan(PhoneLine + CardLine, "[card]\nbyte0 = 0x03\n");
    for (int parti : {0, -1, 3, 1000}) {
        QVERIFY(TAMBRO_Global::getPartiName(parti).isNull());
        QVERIFY(TAMBRO_Global::getPartiShortName(parti).isNull());
        QCOMPARE(TAMBRO_Global::getPartiLabel(parti), QString(""));
        QVERIFY(!TAMBRO_Global::getPartiLabel(parti).isNull());
        QCOMPARE(TAMBRO_Global::getPartiDevName(parti), QString(""));
        QCOMPARE(TAMBRO_Global::getDeviceCardType(parti), -1);
        QVERIFY(!TAMBRO_Global::isPhone(parti));
        QVERIFY(!TAMBRO_Global::isCards(parti));
        QVERIFY(!TAMBRO_Global::writeProtected(parti));
        QVERIFY(!TAMBRO_Global::isCardLocked(parti));
        QVERIFY(!TAMBRO_Global::isUnformattedParti(parti));
        QVERIFY(!TAMBRO_Global::isInvalidParti(parti));
    }
}

void TestPartitions::fieldWidths()
{
    const QByteArray longDevice(40, 'd');
    const QByteArray longName = QByteArray(126, 'n') + "é"; // the cut falls inside "é"
    rescan("/dev/" + longDevice + " /mmc/megasim1 vfat rw 0 0\n",
           "[megasim]\nname = " + longName + "\n");
    QCOMPARE(TAMBRO_Global::getPartiDevName(1), QString::fromLatin1("/dev/" + longDevice.left(26)));
    const QString name = TAMBRO_Global::getPartiShortName(1);
    QVERIFY(name.startsWith(QString(126, QLatin1Char('n'))));
    QCOMPARE(name.toUtf8().left(126), longName.left(126));
    QVERIFY(!name.contains(QStringLiteral("é")));
}

void TestPartitions::cardDriverCalls()
{
    TestPhone::clearJournal();
    rescan(CardLine, ReadyCard);
    QCOMPARE(scanJournalLines(),
             (QList<QByteArray>{R"({"call":"UTIL_GetMMCSDInfo","device":"/dev/mmca"})",
                                R"({"call":"UTIL_GetMMCSDStatus"})"}));
}

void TestPartitions::deviceTreeCallsPairUp()
{
    const QStringList fullRead = {QStringLiteral("DmtTreeFactory::Initialize"),
                                  QStringLiteral("DmtTreeFactory::GetSubtree"),
                                  QStringLiteral("DmtTreeFactory::Uninitialize"),
                                  QStringLiteral("UTIL_GetMMCSDStatus")};
    TestPhone::clearJournal();
    rescan(MegaSimLine, "[megasim]\nname = X\n");
    QCOMPARE(scanJournalCalls(), fullRead);
    QCOMPARE(TestPhone::journal().at(1).value(QStringLiteral("path")).toString(),
             QStringLiteral("./DevDetail/Ext/Conf/MegaSIM"));

    TestPhone::clearJournal();
    rescan(MegaSimLine, "[megasim]\ninitialize = 0\n");
    QCOMPARE(scanJournalCalls(),
             (QStringList{QStringLiteral("DmtTreeFactory::Initialize"),
                          QStringLiteral("DmtTreeFactory::Uninitialize"),
                          QStringLiteral("UTIL_GetMMCSDStatus")}));
}

QTEST_GUILESS_MAIN(TestPartitions)
#include "tst_partitions.moc"
