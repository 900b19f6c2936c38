// The partition table built from mount table text and the card driver's
// answers, put in place as a scan would, and asked through the queries.
#include <TAMBRO_Global.h>

#include "core/megasim_name.h"
#include "core/partition_builder.h"
#include "core/translation.h"
#include "devicefile.h"
#include "test_phone.h"

#include <QTest>

using Tambro::PartitionTable;

namespace {

const QByteArray PhoneLine = "/dev/mtdblock5 /kivlocal/download/tambro jffs2 rw 0 0\n";
const QByteArray CardLine = "/dev/mmca1 /mmc/mmca1 vfat rw,noatime 0 0\n";
const QByteArray MegaSimLine = "/dev/mmcb1 /mmc/megasim1 vfat rw 0 0\n";

const QString Phone = QStringLiteral("phone|My Files|/kivlocal/d|/dev/mtdblock5|/kivlocal/download/tambro|ready|-");
const QString Card = QStringLiteral("card|Memory Card|KIVCARD|/dev/mmca1|/mmc/mmca1|ready|-");
const QString MegaSim = QStringLiteral("megasim|Work SIM|/mmc/megasi|/dev/mmcb1|/mmc/megasim1|ready|-");

// The card driver's answers: its information block, or none at all.
struct Driver : Tambro::CardAndSimAnswers
{
    Driver(quint8 flags0 = 0, quint8 flags2 = 4, QByteArray label = "KIVCARD", bool report = true, int inserted = 0)
        : byte0(flags0), byte2(flags2), label(label), hasReport(report), status(inserted) {}
    bool cardInfo(unsigned char *info) const override
    {
        info[0] = byte0;
        info[2] = byte2;
        memcpy(info + 76, label.constData(), size_t(label.size())); // spills past 11 bytes
        return hasReport;
    }
    QString megaSimName() const override { return QStringLiteral("Work SIM"); }
    int cardStatus() const override { return status; }

    quint8 byte0, byte2;
    QByteArray label;
    bool hasReport;
    int status;
};

// The library answers from this table until a client asks for a rescan.
void use(const QByteArray &mountTable, const Driver &driver = {})
{
    delete Tambro::partitionTable();
    Tambro::partitionTable() = new PartitionTable(Tambro::buildPartitionTable(mountTable, driver));
    TAMBRO_Global::initMemFlag = true;
}

// Every partition in number order, as its queries describe it.
QStringList describeTable()
{
    static const QStringList kinds = {"phone", "megasim", "card"};
    QStringList rows;
    for (int parti = 1; TAMBRO_Global::getDeviceCardType(parti) != -1; ++parti) {
        const QString path = TAMBRO_Global::getPartiName(parti);
        const char *status = TAMBRO_Global::isCardLocked(parti)       ? "locked"
                             : TAMBRO_Global::isUnformattedParti(parti) ? "unformatted"
                             : TAMBRO_Global::isInvalidParti(parti)     ? "invalid"
                                                                        : "ready";
        rows << QStringList{kinds.value(TAMBRO_Global::getDeviceCardType(parti)),
                            TAMBRO_Global::getPartiShortName(parti), TAMBRO_Global::getPartiLabel(parti),
                            TAMBRO_Global::getPartiDevName(parti), path.isNull() ? "(null)" : path,
                            status, TAMBRO_Global::writeProtected(parti) ? "wp" : "-"}
                    .join(u'|');
    }
    return rows;
}

} // namespace

Q_DECLARE_METATYPE(Driver)

class TestPartitions : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void table_data()
    {
        QTest::addColumn<QByteArray>("mountTable");
        QTest::addColumn<Driver>("driver");
        QTest::addColumn<QStringList>("expected");
        const auto card = [](const char *from, const char *to) { return QString(Card).replace(from, to); };

        QTest::newRow("MegaSIM sorts between phone and card")
            << CardLine + MegaSimLine + PhoneLine << Driver() << QStringList{Phone, MegaSim, Card};
        QTest::newRow("second phone record ignored")
            << PhoneLine + "/dev/other /kivlocal/download/tambro jffs2 rw 0 0\n" << Driver() << QStringList{Phone};
        QTest::newRow("cards of one kind end in reverse order of discovery")
            << QByteArray("/dev/first /mmc/mmca1 vfat rw 0 0\n/dev/second /mmc/mmca1 vfat rw 0 0\n") << Driver()
            << QStringList{card("/dev/mmca1", "/dev/second"), card("/dev/mmca1", "/dev/first")};
        QTest::newRow("mount points match exactly")
            << QByteArray("/dev/a /kivlocal/download/tambro/ x 0 0\n/dev/b /mmc/mmca10 x 0 0\n/dev/c /MMC/MMCA1 x 0 0\n")
            << Driver() << QStringList();
        QTest::newRow("escaped blanks in the mount table are decoded")
            << QByteArray("/dev/my\\040card /mmc/mmca1 vfat rw 0 0\n") << Driver()
            << QStringList{card("/dev/mmca1", "/dev/my card")};
        QTest::newRow("label as the card has it, blanks kept, to its 11-byte field")
            << CardLine << Driver(0, 4, "MY  CARD   Z") << QStringList{card("KIVCARD", "MY  CARD   ")};
        QTest::newRow("no driver report hides a mounted card")
            << PhoneLine + CardLine << Driver(0, 4, "", false, 1) << QStringList{Phone};
        QTest::newRow("inserted card without a mount record")
            << PhoneLine << Driver(0, 4, "KIVCARD", true, 1) << QStringList{Phone, card("/dev/mmca1|/mmc/mmca1", "|(null)")};
        QTest::newRow("only status 1 means inserted") << PhoneLine << Driver(0, 4, "", true, 2) << QStringList{Phone};
        QTest::newRow("an inserted card that is mounted is listed once")
            << CardLine << Driver(0, 4, "KIVCARD", true, 1) << QStringList{Card};
        QTest::newRow("no format bits: invalid") << CardLine << Driver(0, 0) << QStringList{card("ready", "invalid")};
        QTest::newRow("unformatted wins over formatted")
            << CardLine << Driver(0, 6) << QStringList{card("ready", "unformatted")};
        QTest::newRow("locked wins over unformatted, and write-protected")
            << CardLine << Driver(3, 2) << QStringList{card("ready|-", "locked|wp")};
        QTest::newRow("write-protected only, extra flag changes nothing")
            << CardLine << Driver(9, 4) << QStringList{card("ready|-", "ready|wp")};
        QTest::newRow("garbage lists nothing") << QByteArray("\x01\x02 not a table\n\n#\n ") << Driver() << QStringList();
    }

    void table()
    {
        QFETCH(QByteArray, mountTable);
        QFETCH(Driver, driver);
        QFETCH(QStringList, expected);
        use(mountTable, driver);
        QCOMPARE(describeTable(), expected);
        QCOMPARE(TAMBRO_Global::getPartiActNumber(), int(expected.size()));
    }

    void fieldsAreCutToTheirWidths()
    {
        use("/dev/" + QByteArray(40, 'd') + " /mmc/megasim1 vfat rw 0 0\n");
        QCOMPARE(TAMBRO_Global::getPartiDevName(1), QString::fromLatin1("/dev/" + QByteArray(26, 'd')));
        Tambro::PartitionInfo info;
        info.setMountDir(QByteArray(40, 'm'));
        info.setDisplayName(QString(126, u'n') + QStringLiteral("é")); // cut inside "é", by bytes
        QCOMPARE(QByteArray(info.mountDir), QByteArray(31, 'm'));
        QCOMPARE(QByteArray(info.displayName), QByteArray(126, 'n') + "\xC3");
        // A text that no catalogue has is shown in English.
        QCOMPARE(Tambro::translate("TAMBRO_Global", "TXT_RID_NONE", "Fallback"), QStringLiteral("Fallback"));
    }

    void partitionCeiling()
    {
        use(PhoneLine + CardLine.repeated(11));
        QCOMPARE(TAMBRO_Global::getPartiActNumber(), 12);
        QCOMPARE(TAMBRO_Global::getMountedPath(2), QStringLiteral("/mmc/mmca1"));
        use(PhoneLine + CardLine.repeated(12));
        QCOMPARE(TAMBRO_Global::getPartiActNumber(), 0);
        // Every number now lies beyond the count, yet the entries are there.
        QVERIFY(TAMBRO_Global::getMountedPath(2).isNull());
        QVERIFY(TAMBRO_Global::hasMMCSDCard());
        QCOMPARE(TAMBRO_Global::getDeviceCardType(13), 2);
    }

    // Mount directories the scan never records, put in by hand.
    void mountPathNeedsALeadingSlashAndLosesOneTrailingSlash()
    {
        use(QByteArray());
        Tambro::PartitionInfo entry;
        for (const char *dir : {"mmc/mmca1", "/", "/mmc//"}) { // each goes first
            entry.setMountDir(dir);
            Tambro::partitionTable()->insert(entry);
        }
        Tambro::partitionTable()->renumber();
        QCOMPARE(TAMBRO_Global::getPartiName(1), QStringLiteral("/mmc/"));
        QVERIFY(TAMBRO_Global::getPartiName(2).isEmpty() && !TAMBRO_Global::getPartiName(2).isNull());
        QVERIFY(TAMBRO_Global::getPartiName(3).isNull());
    }

    void queriesByTypeAndDevice()
    {
        use(MegaSimLine + CardLine, Driver(3, 4));
        QCOMPARE(TAMBRO_Global::getPhoneNoi(), -1);
        QCOMPARE(TAMBRO_IsDeviceMountedbyNum(0), 0);
        QCOMPARE(TAMBRO_IsDeviceMountedbyNum(1), 1); // a device type, not a partition number
        QCOMPARE(TAMBRO_GetDefaultMMCSDPartition(), QStringLiteral("/mmc/mmca1"));
        for (int type : {0, -1, 3})
            QVERIFY(TAMBRO_Global::getMountedPath(type).isNull());
        QVERIFY(TAMBRO_Global::isCards(1) && TAMBRO_Global::isCards(2) && !TAMBRO_Global::isPhone(1));
        // The device field, byte for byte; a mount point is no device.
        QCOMPARE(TAMBRO_IsDeviceMountedbyName("/dev/mmca1"), 1);
        for (const char *name : {"/mmc/mmca1", "/dev/mmca1 ", static_cast<const char *>(nullptr)})
            QCOMPARE(TAMBRO_IsDeviceMountedbyName(name), 0);
        for (int parti : {0, -1, 3}) {
            QVERIFY(TAMBRO_Global::getPartiName(parti).isNull() && TAMBRO_Global::getPartiShortName(parti).isNull());
            QVERIFY(!TAMBRO_Global::getPartiLabel(parti).isNull() && TAMBRO_Global::getPartiLabel(parti).isEmpty());
            QVERIFY(!TAMBRO_Global::writeProtected(parti) && !TAMBRO_Global::isCardLocked(parti));
        }
        use(CardLine + PhoneLine);
        QCOMPARE(TAMBRO_Global::getPhoneNoi(), 1);
        QCOMPARE(TAMBRO_Global::phoneNoi, -1);
    }

    void megaSimName_data()
    {
        QTest::addColumn<QByteArray>("tree");
        QTest::addColumn<QString>("name");
        QTest::addColumn<int>("calls"); // platform calls, Uninitialize always among them

        QTest::newRow("name from the tree") << QByteArray("name = Travel ✓") << "Travel ✓" << 3;
        QTest::newRow("empty name keeps the default") << QByteArray("name =") << "MegaSIM" << 3;
        QTest::newRow("tree fails to start") << QByteArray("initialize = 0\nname = X") << "MegaSIM" << 2;
        QTest::newRow("subtree error") << QByteArray("subtree = 5\nname = X") << "MegaSIM" << 3;
        QTest::newRow("node not found") << QByteArray("node = 0\nname = X") << "MegaSIM" << 3;
    }

    void megaSimName()
    {
        QFETCH(QByteArray, tree);
        QFETCH(QString, name);
        QFETCH(int, calls);
        QVERIFY(m_device.write("[megasim]\n" + tree + "\n"));
        TestPhone::clearJournal();
        QCOMPARE(Tambro::readMegaSimName(), name);
        QCOMPARE(TestPhone::journalCalls().size(), calls);
        QCOMPARE(TestPhone::journalCalls().last(), QStringLiteral("DmtTreeFactory::Uninitialize"));
    }

private:
    TestDeviceFile m_device;
};

QTEST_GUILESS_MAIN(TestPartitions)
#include "tst_partitions.moc"
