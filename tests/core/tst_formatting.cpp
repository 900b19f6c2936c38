// Sizes, dates and durations as the phone writes them: each row compares the
// library's text with the expected one.
#include <TAMBRO_Global.h>

#include <QCoreApplication>
#include <QTest>
#include <QTranslator>

#include <climits>

using G = TAMBRO_Global;

class TestFormatting : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void texts_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<QString>("expected");

        QTest::newRow("last byte count, never with decimals") << G::uintSizeToGbMbStr(1023, 2) << "1023 B";
        QTest::newRow("first kilobyte") << G::uintSizeToGbMbStr(1024, 1) << "1.0 KB";
        QTest::newRow("rounded value picks MB") << G::uintSizeToGbMbStr(1048535, 1) << "1.0 MB";
        QTest::newRow("more decimals keep KB") << G::uintSizeToGbMbStr(1048535, 2) << "1023.96 KB";
        QTest::newRow("no decimals: 1023.5 KB is MB") << G::uintSizeToGbMbStr(1048064, 0) << "1 MB";
        QTest::newRow("no decimals: just below stays KB") << G::uintSizeToGbMbStr(1048063, 0) << "1023 KB";
        QTest::newRow("MB text is the unrounded value") << G::uintSizeToGbMbStr(1572864, 3) << "1.500 MB";
        QTest::newRow("negative decimals: text unrounded, six places") << G::uintSizeToGbMbStr(1027072, -1) << "1003.000000 KB";
        QTest::newRow("decimals -128 are six too, not shortest") << G::uintSizeToGbMbStr(1027072, -128) << "1003.000000 KB";
        QTest::newRow("most decimals: 17 written, unit of their NaN rounding") << G::uintSizeToGbMbStr(1572864, INT_MAX) << "1536.00000000000000000 KB";
        QTest::newRow("no unit above MB") << G::uintSizeToGbMbStr(1073741824, 1) << "1024.0 MB";
        QTest::newRow("NaN takes the kilobyte path") << G::uintSizeToGbMbStr(qQNaN(), 1) << "nan KB";
        QTest::newRow("infinity") << G::uintSizeToGbMbStr(qInf(), 1) << "inf MB";
        QTest::newRow("minus infinity") << G::uintSizeToGbMbStr(-qInf(), 1) << "-inf B";
        QTest::newRow("details: one decimal") << G::getDetailViewSizeStr(1048535) << "1.0 MB";
        QTest::newRow("title: count, then size") << G::getMultiSelectTitle(2048, 3) << "3 files selected - Total 2.0 KB";
        QTest::newRow("title: count unsigned") << G::getMultiSelectTitle(10, 4294967295u) << "4294967295 files selected - Total 10 B";

        QTest::newRow("date zero padded") << G::convertDateTime({{2007, 3, 5}, {9, 4, 0}}) << "2007-03-05 09:04:00";
        QTest::newRow("year below 1000 padded with blanks") << G::convertDateTime({{999, 12, 31}, {23, 59, 59}}) << " 999-12-31 23:59:59";
        QTest::newRow("five-digit year not cut") << G::convertDateTime({{10000, 1, 1}, {0, 0}}) << "10000-01-01 00:00:00";

        QTest::newRow("below half a second") << G::convertTime(499) << "00:00";
        QTest::newRow("half a second rounds up") << G::convertTime(500) << "00:01";
        QTest::newRow("last without hours") << G::convertTime(3599499) << "59:59";
        QTest::newRow("first with hours") << G::convertTime(3599500) << "01:00:00";
        QTest::newRow("more than 99 hours") << G::convertTime(360000000) << "100:00:00";
        QTest::newRow("negative wraps unsigned") << G::convertTime(-501) << "1193:02:47";
        QTest::newRow("rounding wraps past zero") << G::convertTime(-1) << "00:00";
    }

    void texts()
    {
        QFETCH(QString, text);
        QFETCH(QString, expected);
        QCOMPARE(text, expected);
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
