// The partition table's own rules, on tables made by hand.
#include <TAMBRO_Global.h>

#include "core/partition_table.h"

#include <QTest>

using Tambro::PartitionInfo;
using Tambro::PartitionTable;

namespace {

PartitionInfo entry(int type, const char *mountDir, const char *device = "")
{
    PartitionInfo info;
    info.deviceType = type;
    info.setMountDir(mountDir);
    info.setDeviceName(device);
    return info;
}

QString typesInOrder(const PartitionTable &table)
{
    QString types;
    for (int number = 1; number <= table.count(); ++number)
        types += QString::number(table.findByNumber(number)->deviceType);
    return types;
}

// Makes the library use a table built here, as if a scan had filled it.
void useTable(const PartitionTable &table)
{
    delete Tambro::partitionTable();
    Tambro::partitionTable() = new PartitionTable(table);
    TAMBRO_Global::initMemFlag = true;
}

} // namespace

class TestPartitionTable : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void insertionKeepsTypeOrder()
    {
        PartitionTable table;
        for (int type : {2, 0, 1, 2, 0})
            table.insert(entry(type, "/"));
        table.renumber();
        QCOMPARE(typesInOrder(table), QStringLiteral("00122"));
        QCOMPARE(table.numberOfType(1), 3);
        QCOMPARE(table.numberOfType(5), -1);
    }

    void sameTypeEndsInReverseDiscoveryOrder()
    {
        PartitionTable table;
        table.insert(entry(2, "/first"));
        table.insert(entry(2, "/second"));
        table.renumber();
        QCOMPARE(QByteArray(table.findByNumber(1)->mountDir), QByteArray("/second"));
    }

    void fieldsAreCutToTheirWidths()
    {
        PartitionInfo info = entry(0, "/a/mount/point/longer/than/thirty-one/bytes");
        QCOMPARE(qstrlen(info.mountDir), 31u);
        info.setLabel("/a/mount/point");
        QCOMPARE(QByteArray(info.label), QByteArray("/a/mount/po"));
        info.setDisplayName(QString(200, QLatin1Char('x')));
        QCOMPARE(qstrlen(info.displayName), 127u);
    }

    void mountPathNeedsALeadingSlash_data()
    {
        QTest::addColumn<QByteArray>("mountDir");
        QTest::addColumn<QString>("path");

        QTest::newRow("plain") << QByteArray("/mmc/mmca1") << QStringLiteral("/mmc/mmca1");
        QTest::newRow("one trailing slash removed") << QByteArray("/mmc/mmca1/") << QStringLiteral("/mmc/mmca1");
        QTest::newRow("only one trailing slash removed") << QByteArray("/mmc//") << QStringLiteral("/mmc/");
        QTest::newRow("root becomes empty") << QByteArray("/") << QStringLiteral("");
        QTest::newRow("relative is null") << QByteArray("mmc/mmca1") << QString();
        QTest::newRow("empty is null") << QByteArray() << QString();
    }

    void mountPathNeedsALeadingSlash()
    {
        QFETCH(QByteArray, mountDir);
        QFETCH(QString, path);
        PartitionTable table;
        table.insert(entry(2, mountDir.constData()));
        table.renumber();
        useTable(table);

        const QString name = TAMBRO_Global::getPartiName(1);
        QCOMPARE(name, path);
        QCOMPARE(name.isNull(), path.isNull());
    }
};

QTEST_GUILESS_MAIN(TestPartitionTable)
#include "tst_partition_table.moc"
