#include "sortmethods.h"

#include <QLocale>
#include <QTest>

#include "sorter_units.h"

#include <vector>

static int sign(int value)
{
    return (value > 0) - (value < 0);
}

class TestSortMethods : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void order_data();
    void order();
    void cLocaleSortsLikeAPerson();
    void nullArrayIsEmpty();
};

void TestSortMethods::initTestCase()
{
    QLocale::setDefault(QLocale(QLocale::English, QLocale::UnitedStates));
}

void TestSortMethods::order_data()
{
    QTest::addColumn<QString>("first");
    QTest::addColumn<QString>("second");
    QTest::addColumn<int>("expected");

    QTest::newRow("numbers by value") << "file2" << "file10" << -1;
    QTest::newRow("numbers by value, reversed") << "file10" << "file9" << 1;
    QTest::newRow("case ignored") << "File" << "file" << 0;
    QTest::newRow("case ignored, lower first") << "apple" << "Banana" << -1;
    QTest::newRow("case ignored, upper first") << "Cherry" << "banana" << 1;
    QTest::newRow("accent sorts with its letter") << QString::fromUtf8("\u00E9t\u00E9") << "fall" << -1;
    QTest::newRow("code above 0xFF decoded whole") << QString::fromUtf8("\u0100") << "B" << -1;
    QTest::newRow("empty names") << "" << "" << 0;
    QTest::newRow("empty before any name") << "" << "a" << -1;
    QTest::newRow("prefix first") << "read" << "readme" << -1;
}

void TestSortMethods::order()
{
    QFETCH(QString, first);
    QFETCH(QString, second);
    QFETCH(int, expected);

    QCOMPARE(sign(sortmethods_str_cmp(sorterUnits(first).data(), sorterUnits(second).data())), expected);
}

void TestSortMethods::cLocaleSortsLikeAPerson()
{
    QLocale::setDefault(QLocale::c());
    const int numbers = sortmethods_str_cmp(sorterUnits("file2").data(), sorterUnits("file10").data());
    const int letters = sortmethods_str_cmp(sorterUnits("apple").data(), sorterUnits("Banana").data());
    QLocale::setDefault(QLocale(QLocale::English, QLocale::UnitedStates));
    QVERIFY(numbers < 0);
    QVERIFY(letters < 0);
}

void TestSortMethods::nullArrayIsEmpty()
{
    QCOMPARE(sortmethods_str_cmp(nullptr, sorterUnits("").data()), 0);
    QVERIFY(sortmethods_str_cmp(nullptr, sorterUnits("a").data()) < 0);
}

QTEST_GUILESS_MAIN(TestSortMethods)
#include "tst_sortmethods.moc"
