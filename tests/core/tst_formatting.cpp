// Sizes, dates and durations as the phone writes them.
#include <TAMBRO_Global.h>

#include <QCoreApplication>
#include <QTest>
#include <QTranslator>

#include <cmath>
#include <limits>

class TestFormatting : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void sizes_data()
    {
        QTest::addColumn<double>("size");
        QTest::addColumn<int>("decimals");
        QTest::addColumn<QString>("text"); // uintSizeToGbMbStr

        const double nan = std::numeric_limits<double>::quiet_NaN();
        const double inf = std::numeric_limits<double>::infinity();
        QTest::newRow("zero") << 0.0 << 1 << "0 B";
        QTest::newRow("last byte count") << 1023.0 << 1 << "1023 B";
        QTest::newRow("fraction of a byte rounds") << 1023.5 << 1 << "1024 B";
        QTest::newRow("bytes never get decimals") << 500.0 << 2 << "500 B";
        QTest::newRow("first kilobyte") << 1024.0 << 1 << "1.0 KB";
        QTest::newRow("rounded value picks MB") << 1048535.0 << 1 << "1.0 MB";
        QTest::newRow("more decimals keep KB") << 1048535.0 << 2 << "1023.96 KB";
        QTest::newRow("no decimals: 1023.5 KB is MB") << 1048064.0 << 0 << "1 MB";
        QTest::newRow("no decimals: just below stays KB") << 1048063.0 << 0 << "1023 KB";
        QTest::newRow("last byte below a megabyte") << 1048575.0 << 1 << "1.0 MB";
        QTest::newRow("MB text is unrounded value") << 1572864.0 << 3 << "1.500 MB";
        QTest::newRow("negative decimals: text unrounded, six places") << 1027072.0 << -1 << "1003.000000 KB";
        QTest::newRow("no unit above MB") << 1073741824.0 << 1 << "1024.0 MB";
        QTest::newRow("negative is bytes") << -5000.0 << 1 << "-5000 B";
        QTest::newRow("NaN takes the kilobyte path") << nan << 1 << "nan KB";
        QTest::newRow("infinity") << inf << 1 << "inf MB";
        QTest::newRow("minus infinity") << -inf << 1 << "-inf B";
    }

    void sizes()
    {
        QFETCH(double, size);
        QFETCH(int, decimals);
        QFETCH(QString, text);
        QCOMPARE(TAMBRO_Global::uintSizeToGbMbStr(size, decimals), text);
    }

    void templates()
    {
        QCOMPARE(TAMBRO_Global::getMultiSelectTitle(2048.0, 3), "3 files selected - Total 2.0 KB");
        QCOMPARE(TAMBRO_Global::getMultiSelectTitle(10.0, 4294967295u), "4294967295 files selected - Total 10 B");
        QCOMPARE(TAMBRO_Global::getDetailViewSizeStr(1048535.0), "1.0 MB");

        QTranslator german;
        QVERIFY(german.load(QStringLiteral("kivtambro_base_de"), QStringLiteral(":/kivtambro-base/i18n")));
        QCoreApplication::installTranslator(&german);
        QCOMPARE(TAMBRO_Global::getMultiSelectTitle(3.0 * 1048576, 2), "2 Dateien ausgewählt - Gesamt 3.0 MB");
        QCoreApplication::removeTranslator(&german);
    }

    void dateTimes_data()
    {
        QTest::addColumn<QDateTime>("dateTime");
        QTest::addColumn<QString>("text");

        QTest::newRow("zero padded") << QDateTime(QDate(2007, 3, 5), QTime(9, 4, 0)) << "2007-03-05 09:04:00";
        QTest::newRow("year below 1000 padded with blanks") << QDateTime(QDate(999, 12, 31), QTime(23, 59, 59)) << " 999-12-31 23:59:59";
        QTest::newRow("five-digit year not cut") << QDateTime(QDate(10000, 1, 1), QTime(0, 0)) << "10000-01-01 00:00:00";
        QTest::newRow("milliseconds dropped, not rounded") << QDateTime(QDate(2020, 1, 1), QTime(0, 0, 0, 999)) << "2020-01-01 00:00:00";
    }

    void dateTimes()
    {
        QFETCH(QDateTime, dateTime);
        QFETCH(QString, text);
        QCOMPARE(TAMBRO_Global::convertDateTime(dateTime), text);
    }

    void durations_data()
    {
        QTest::addColumn<int>("milliseconds");
        QTest::addColumn<QString>("text");

        QTest::newRow("zero") << 0 << "00:00";
        QTest::newRow("below half a second") << 499 << "00:00";
        QTest::newRow("half a second rounds up") << 500 << "00:01";
        QTest::newRow("last without hours") << 3599499 << "59:59";
        QTest::newRow("first with hours") << 3599500 << "01:00:00";
        QTest::newRow("more than a day") << 90000000 << "25:00:00";
        QTest::newRow("more than 99 hours") << 360000000 << "100:00:00";
        QTest::newRow("negative wraps unsigned") << -501 << "1193:02:47";
        QTest::newRow("rounding wraps past zero") << -1 << "00:00";
        QTest::newRow("largest int") << 2147483647 << "596:31:24";
    }

    void durations()
    {
        QFETCH(int, milliseconds);
        QFETCH(QString, text);
        QCOMPARE(TAMBRO_Global::convertTime(milliseconds), text);
    }
};

QTEST_GUILESS_MAIN(TestFormatting)
#include "tst_formatting.moc"
