// The context's lazy start-up, the scan of the phone's mount table and the
// process-wide handles, built once per process: each function a scenario, on
// a phone whose phone memory and card are mounted.
#include <TAMBRO_Global.h>

#include "scenarios.h"
#include "test_phone.h"

#include <QTest>

namespace {

const QByteArray PhoneLine = "/dev/mtdblock5 /kivlocal/download/tambro jffs2 rw 0 0\n";
const QByteArray PhoneAndCard = PhoneLine + "/dev/mmca1 /mmc/mmca1 vfat rw 0 0\n";

int scansJournalled()
{
    return int(TestPhone::journalCalls().count(QStringLiteral("UTIL_GetMMCSDStatus")));
}

} // namespace

class TestGlobalContext : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase()
    {
        TestPhone::startJournal();
        TestPhone::setMountTable(PhoneAndCard);
    }

    // Built once, and kept as a snapshot until a client clears the flag.
    void instanceBuildsTheTableAndTheRegistryOnce()
    {
        QVERIFY(!TAMBRO_Global::initMemFlag);
        TAMBRO_Global *first = TAMBRO_Global::instance();
        QVERIFY(first && TAMBRO_Global::initMemFlag && TAMBRO_Global::instance() == first);
        TestPhone::setMountTable(PhoneLine);
        QCOMPARE(TAMBRO_Global::getPartiActNumber(), 2);
        TAMBRO_Global::initMemFlag = false;
        QCOMPARE(TAMBRO_Global::getPartiActNumber(), 1);
        QCOMPARE(scansJournalled(), 2);
        AM_MimeRegistry *registry = TAMBRO_Global::getAmMimeRegInstance(); // made, and opened, once too
        QVERIFY(registry && TAMBRO_Global::getAmMimeRegInstance() == registry);
        QCOMPARE(TestPhone::journalLines().count(R"({"call":"AM_MimeRegistry::init","type":0})"), 1);
    }

    void queriesWithoutTableAnswerNeutrally()
    {
        QVERIFY(!TAMBRO_Global::isPhone(1) && !TAMBRO_Global::isCards(2));
        QVERIFY(!TAMBRO_Global::writeProtected(1) && !TAMBRO_Global::isInvalidParti(2));
        QCOMPARE(TAMBRO_Global::getPartiDevName(1), QString(""));
        QCOMPARE(TAMBRO_Global::getPhoneNoi(), -1);
        QCOMPARE(TAMBRO_Global::getDeviceName(), QStringLiteral("/kivlocal/download/tambro")); // the root
        // Looked up before anything is built, so there is no path yet...
        QVERIFY(TAMBRO_Global::getMountedPath(2).isNull());
        QVERIFY(TestPhone::journalLines().isEmpty());
        // ...while the default card partition builds the table first.
        QCOMPARE(TAMBRO_Global::getDefaultMMCSDPartition(), QStringLiteral("/mmc/mmca1"));
    }

    // A client may set the public flag before the first scan: no table then.
    void flagSetBeforeAnyScanAnswersNeutrally()
    {
        TAMBRO_Global::initMemFlag = true;
        QCOMPARE(TAMBRO_Global::getPartiActNumber(), 0);
        QVERIFY(!TAMBRO_Global::isDeviceMounted("/dev/mmca1") && !TAMBRO_Global::isDeviceMounted(2));
        QVERIFY(TAMBRO_Global::getDefaultMMCSDPartition().isNull());
        QCOMPARE(scansJournalled(), 0);
    }

    // The look-up comes before instance(), whose rescan of a grown mount
    // table replaces the entries of the first, small one.
    void mountedPathSurvivesTheRescanItStarts()
    {
        TestPhone::setMountTable(PhoneLine);
        QCOMPARE(TAMBRO_Global::getPartiActNumber(), 1);
        TestPhone::setMountTable(PhoneAndCard + "/dev/b /mmc/megasim1 vfat rw 0 0\n" + PhoneAndCard);
        TAMBRO_Global::initMemFlag = false;
        QCOMPARE(TAMBRO_Global::getMountedPath(0), QStringLiteral("/kivlocal/download/tambro"));
    }

    void labelAndLockBuildOnlyAMissingTable()
    {
        QCOMPARE(TAMBRO_Global::getPartiLabel(1), QStringLiteral("/kivlocal/d"));
        TestPhone::setMountTable(QByteArray());
        TAMBRO_Global::initMemFlag = false;
        QVERIFY(!TAMBRO_Global::isCardLocked(2));
        QCOMPARE(TAMBRO_Global::getPartiLabel(1), QStringLiteral("/kivlocal/d"));
        QCOMPARE(scansJournalled(), 1);
        QCOMPARE(TAMBRO_Global::getPartiActNumber(), 0); // any initialising query rescans
    }

    // The card driver once per card record, the tree once per MegaSIM, the
    // card status once at the end.
    void scanAsksThePlatformRecordByRecord()
    {
        TestPhone::setMountTable("/dev/b /mmc/megasim1 vfat rw 0 0\n" + PhoneAndCard);
        TAMBRO_Global::instance();
        QStringList calls = TestPhone::journalCalls();
        calls.removeAll(QStringLiteral("RES_ICON_Reader::getIcon")); // the standard icons, after the scan
        QCOMPARE(calls,
                 (QStringList{"DmtTreeFactory::Initialize", "DmtTreeFactory::GetSubtree",
                              "DmtTreeFactory::Uninitialize", "UTIL_GetMMCSDInfo",
                              "UTIL_GetMMCSDStatus"}));
        QCOMPARE(TestPhone::journalled("UTIL_GetMMCSDInfo", "device"), QStringList{"/dev/mmca"});
    }

    // Read in part, a table could list a storage that is not there.
    void mountTableOverTheLimitIsNotRead()
    {
        TestPhone::setMountTable(PhoneAndCard + QByteArray(1 << 20, '#'));
        QTest::ignoreMessage(QtWarningMsg, "the mount table /etc/mtab is larger than 1048576 bytes "
                                           "and is not read: no storage is listed from it");
        QCOMPARE(TAMBRO_Global::getPartiActNumber(), 0);
    }

    void compareStringSendsByteSwappedUnits()
    {
        TAMBRO_Global::compareString(QString(), QString());
        TAMBRO_Global::compareString(QStringLiteral("a\u20ac"), QStringLiteral("\U0001F600"));
        QCOMPARE(TestPhone::journalLines(),
                 (QList<QByteArray>{R"({"call":"sortmethods_str_cmp","first":[0],"second":[0]})",
                                    R"({"call":"sortmethods_str_cmp","first":[24832,44064,0],"second":[15832,222,0]})"}));
    }

    // Run in French, for which no catalogue exists.
    void namesAreEnglishWithoutACatalogueForTheLanguage()
    {
        QCOMPARE(TAMBRO_Global::getPartiShortName(1), QStringLiteral("My Files"));
        QCOMPARE(TAMBRO_Global::getPartiShortName(2), QStringLiteral("Memory Card"));
    }

    // Run in German.
    void userLanguageCatalogueIsLoadedAtStartup()
    {
        QCOMPARE(TAMBRO_Global::getPartiShortName(1), QStringLiteral("Eigene Dateien"));
        QCOMPARE(TAMBRO_Global::getPartiShortName(2), QStringLiteral("Speicherkarte"));
    }
};

KIVTAMBRO_SCENARIO_MAIN(TestGlobalContext,
                        {{"namesAreEnglishWithoutACatalogueForTheLanguage",
                          {QString(), {"LANG=fr_FR.UTF-8", "LC_ALL=fr_FR.UTF-8"}}},
                         {"userLanguageCatalogueIsLoadedAtStartup",
                          {QString(), {"LANG=de_DE.UTF-8", "LC_ALL=de_DE.UTF-8"}}}})
#include "tst_global_context.moc"
