// Sizes, dates and durations as the phone writes them, a table each.
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
