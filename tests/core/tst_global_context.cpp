// The context's lazy start-up and process-wide handles. The library builds
// its state once per process, so CTest runs each function in a process of
// its own, on a phone with the phone memory and a card mounted.
#include <TAMBRO_FixedFolder.h>
#include <TAMBRO_Global.h>

#include "test_phone.h"

#include <QTest>
#include <QTranslator>

namespace {

const QByteArray PhoneAndCard = "/dev/mtdblock5 /kivlocal/download/tambro jffs2 rw 0 0\n"
                                "/dev/mmca1 /mmc/mmca1 vfat rw 0 0\n";

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

    void instanceBuildsTheTableOnce()
    {
        QVERIFY(!TAMBRO_Global::initMemFlag);
        TAMBRO_Global *first = TAMBRO_Global::instance();
        QVERIFY(first);
        QVERIFY(TAMBRO_Global::initMemFlag);
        QCOMPARE(TAMBRO_Global::instance(), first);
        QCOMPARE(TAMBRO_Global::getPartiActNumber(), 2);
        QCOMPARE(scansJournalled(), 1);
    }

    void tableIsASnapshotUntilTheFlagIsCleared()
    {
        TestPhone::setMountTable("/dev/mtdblock5 /kivlocal/download/tambro jffs2 rw 0 0\n");
        QCOMPARE(TAMBRO_Global::getPartiActNumber(), 1);
        TestPhone::setMountTable(PhoneAndCard);
        QCOMPARE(TAMBRO_Global::getPartiActNumber(), 1);
        QVERIFY(!TAMBRO_Global::hasMMCSDCard());

        TAMBRO_Global::initMemFlag = false;
        QCOMPARE(TAMBRO_Global::getPartiActNumber(), 2);
        QCOMPARE(scansJournalled(), 2);
    }

    void queriesWithoutTableAnswerNeutrally()
    {
        QVERIFY(!TAMBRO_Global::isPhone(1));
        QVERIFY(!TAMBRO_Global::isCards(2));
        QVERIFY(!TAMBRO_Global::writeProtected(1));
        QVERIFY(!TAMBRO_Global::isUnformattedParti(2));
        QVERIFY(!TAMBRO_Global::isInvalidParti(2));
        QCOMPARE(TAMBRO_Global::getPartiDevName(1), QString(""));
        QCOMPARE(TAMBRO_Global::getPhoneNoi(), -1);
        // Looked up before anything is built, so there is no path yet...
        QVERIFY(TAMBRO_Global::getMountedPath(2).isNull());
        QVERIFY(!TAMBRO_Global::initMemFlag);
        QVERIFY(TestPhone::journal().isEmpty());
        // ...while the default card partition builds the table first.
        QCOMPARE(TAMBRO_Global::getDefaultMMCSDPartition(), QStringLiteral("/mmc/mmca1"));
        QCOMPARE(TAMBRO_Global::getMountedPath(2), QStringLiteral("/mmc/mmca1"));
    }

    // A client may set the public flag before the first scan: no table then.
    void flagSetBeforeAnyScanAnswersNeutrally()
    {
        TAMBRO_Global::initMemFlag = true;
        QCOMPARE(TAMBRO_Global::getPartiActNumber(), 0);
        QVERIFY(!TAMBRO_Global::isDeviceMounted("/dev/mmca1"));
        QVERIFY(!TAMBRO_Global::isDeviceMounted(2));
        QVERIFY(TAMBRO_Global::getDefaultMMCSDPartition().isNull());
        QVERIFY(TAMBRO_Global::getPartiShortName(1).isNull());
        QCOMPARE(scansJournalled(), 0);
    }

    // The look-up comes before instance(), whose rescan of a grown mount
    // table replaces the entries of the first, small one.
    void mountedPathSurvivesTheRescanItStarts()
    {
        TestPhone::setMountTable("/dev/mtdblock5 /kivlocal/download/tambro jffs2 rw 0 0\n");
        QCOMPARE(TAMBRO_Global::getPartiActNumber(), 1);
        TestPhone::setMountTable(PhoneAndCard + "/dev/b /mmc/megasim1 vfat rw 0 0\n" + PhoneAndCard);
        TAMBRO_Global::initMemFlag = false;
        QCOMPARE(TAMBRO_Global::getMountedPath(0), QStringLiteral("/kivlocal/download/tambro"));
    }

    void labelAndLockBuildOnlyAMissingTable()
    {
        QCOMPARE(TAMBRO_Global::getPartiLabel(1), QStringLiteral("/kivlocal/d"));
        QCOMPARE(scansJournalled(), 1);
        TestPhone::setMountTable(QByteArray());
        TAMBRO_Global::initMemFlag = false;
        QVERIFY(!TAMBRO_Global::isCardLocked(2));
        QCOMPARE(TAMBRO_Global::getPartiLabel(1), QStringLiteral("/kivlocal/d"));
        QCOMPARE(scansJournalled(), 1);
        // Any initialising query rescans.
        QCOMPARE(TAMBRO_Global::getPartiActNumber(), 0);
        QCOMPARE(scansJournalled(), 2);
    }

    void registryIsCreatedOnce()
    {
        TAMBRO_Global::instance();
        QVERIFY(!TestPhone::journalCalls().contains(QStringLiteral("AM_MimeRegistry::init")));
        AM_MimeRegistry *registry = TAMBRO_Global::getAmMimeRegInstance();
        QVERIFY(registry);
        QCOMPARE(TAMBRO_Global::getAmMimeRegInstance(), registry);
        QCOMPARE(TestPhone::journalLines().count(R"({"call":"AM_MimeRegistry::init","type":0})"), 1);
    }

    void compareStringSendsByteSwappedUnits_data()
    {
        QTest::addColumn<QString>("first");
        QTest::addColumn<QString>("second");
        QTest::addColumn<QByteArray>("line");

        QTest::newRow("letters") << "a" << "b"
                                 << QByteArray(R"({"call":"sortmethods_str_cmp","first":[24832,0],"second":[25088,0]})");
        QTest::newRow("empty strings") << "" << ""
                                       << QByteArray(R"({"call":"sortmethods_str_cmp","first":[0],"second":[0]})");
        QTest::newRow("both bytes swapped") << QStringLiteral("\u20ac") << QStringLiteral("\U0001F600")
                                            << QByteArray(R"({"call":"sortmethods_str_cmp","first":[44064,0],"second":[15832,222,0]})");
    }

    void compareStringSendsByteSwappedUnits()
    {
        QFETCH(QString, first);
        QFETCH(QString, second);
        QFETCH(QByteArray, line);
        TestPhone::clearJournal();
        TAMBRO_Global::compareString(first, second);
        QCOMPARE(TestPhone::journalLines(), QList<QByteArray>{line});
    }

    void compareStringSortsLikeAPerson_data()
    {
        QTest::addColumn<QString>("first");
        QTest::addColumn<QString>("second");
        QTest::addColumn<int>("sign");

        QTest::newRow("numbers by value") << "file2" << "file10" << -1;
        QTest::newRow("case ignored") << "apple" << "Banana" << -1;
        QTest::newRow("case ignored, reversed") << "Banana" << "apple" << 1;
        QTest::newRow("equal") << "same" << "same" << 0;
        QTest::newRow("empty first") << "" << "a" << -1;
    }

    void compareStringSortsLikeAPerson()
    {
        QFETCH(QString, first);
        QFETCH(QString, second);
        QFETCH(int, sign);
        const int result = TAMBRO_Global::compareString(first, second);
        QCOMPARE((result > 0) - (result < 0), sign);
    }

    void clientFlagsAreLeftAlone()
    {
        TAMBRO_Global::instance();
        TAMBRO_Global::getPhoneNoi();
        TAMBRO_Global::getDefaultMMCSDPartition();
        QCOMPARE(TAMBRO_Global::phoneNoi, -1);
        QVERIFY(!TAMBRO_Global::bSetLocaleFlag);
        QVERIFY(!TAMBRO_Global::bmemberPasteCancelFlag);
    }

    void deviceNameIsTheRootPath()
    {
        TAMBRO_FixedFolder::m_sFMRootPath = QStringLiteral("/somewhere/else");
        QCOMPARE(TAMBRO_Global::getDeviceName(), QStringLiteral("/somewhere/else"));
        QVERIFY(!TAMBRO_Global::initMemFlag);
    }

    void namesAreEnglishWithoutACatalogueForTheLanguage()
    {
        // CTest runs this one with a French locale, for which no catalogue exists.
        QCOMPARE(TAMBRO_Global::getPartiShortName(1), QStringLiteral("My Files"));
        QCOMPARE(TAMBRO_Global::getPartiShortName(2), QStringLiteral("Memory Card"));
    }

    void userLanguageCatalogueIsLoadedAtStartup()
    {
        // CTest runs this one with a German locale.
        QCOMPARE(TAMBRO_Global::getPartiShortName(1), QStringLiteral("Eigene Dateien"));
        QCOMPARE(TAMBRO_Global::getPartiShortName(2), QStringLiteral("Speicherkarte"));
    }

    void englishCatalogueIsLoadedAtStartup()
    {
        // Asked of Qt directly, so the library's own fallback cannot answer.
        QCOMPARE(QCoreApplication::translate("TAMBRO_Global", "TXT_RID_LIST_A_MEMORY_CARD",
                                             "Memory Card"),
                 QStringLiteral("Memory Card"));
    }

    void anotherLanguageIsOneMoreCatalogue()
    {
        QTranslator german;
        QVERIFY(german.load(QStringLiteral(":/test-i18n/kivtambro_test_de.qm")));
        QCoreApplication::installTranslator(&german);
        QCOMPARE(TAMBRO_Global::getPartiShortName(1), QStringLiteral("Eigene Dateien"));
        // A text the catalogue lacks falls back to English.
        QCOMPARE(TAMBRO_Global::getPartiShortName(2), QStringLiteral("Memory Card"));
    }
};

QTEST_GUILESS_MAIN(TestGlobalContext)
#include "tst_global_context.moc"
