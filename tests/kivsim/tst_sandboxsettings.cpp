// The [sandbox] section: sizes with suffixes, bad values, paths passed as written.

#include "sandboxsettings.h"

#include "simplatform/keyfile.h"

#include <QTest>

class TestSandboxSettings : public QObject
{
    Q_OBJECT

private:
    static SandboxSettings read(const QByteArray &text, QStringList &warnings)
    {
        const KeyFile file = KeyFile::parse(text, QStringLiteral("dev.ini"));
        warnings = file.warnings();
        return SandboxSettings::from(file, QStringLiteral("dev.ini"), warnings);
    }

private Q_SLOTS:
    void byteSizes_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<qint64>("bytes"); // -1: refused

        QTest::newRow("plain") << "512" << Q_INT64_C(512);
        QTest::newRow("zero") << "0" << Q_INT64_C(0);
        QTest::newRow("blanks") << " 8M " << Q_INT64_C(8388608);
        QTest::newRow("kilo lower case") << "64k" << Q_INT64_C(65536);
        QTest::newRow("giga") << "1G" << Q_INT64_C(1073741824);
        QTest::newRow("hex") << "0x200" << Q_INT64_C(512);
        QTest::newRow("hex with suffix") << "0x10M" << Q_INT64_C(16777216);
        // B and other hex letters are digits, not units.
        QTest::newRow("hex ending in a letter") << "0x1B" << Q_INT64_C(27);
        QTest::newRow("largest") << "9223372036854775807" << Q_INT64_C(9223372036854775807);
        QTest::newRow("overflow by the unit") << "8589934592G" << Q_INT64_C(-1);
        QTest::newRow("just below overflow") << "8589934591G" << Q_INT64_C(9223372035781033984);
        QTest::newRow("negative") << "-8M" << Q_INT64_C(-1);
        QTest::newRow("unit alone") << "M" << Q_INT64_C(-1);
        QTest::newRow("two letters") << "8MB" << Q_INT64_C(-1);
        QTest::newRow("fraction") << "1.5M" << Q_INT64_C(-1);
        QTest::newRow("empty") << "" << Q_INT64_C(-1);
    }

    void byteSizes()
    {
        QFETCH(QString, text);
        QFETCH(qint64, bytes);
        QCOMPARE(parseByteSize(text).value_or(-1), bytes);
    }

    void missingSectionGivesDefaults()
    {
        QStringList warnings;
        const SandboxSettings settings = read("[card]\nstatus = 1\n", warnings);
        QCOMPARE(settings.mountTable, QStringLiteral("mtab"));
        QCOMPARE(settings.phoneSize + settings.cardSize + settings.megaSimSize, 0);
        QCOMPARE(settings.dataPath, QStringLiteral("/kivlocal/download/tambro"));
        QCOMPARE(settings.writePath, QStringLiteral("/kivlocal/appdata"));
        QVERIFY(warnings.isEmpty());
    }

    void badValuesKeepDefaultsAndNameTheirLine()
    {
        QStringList warnings;
        const SandboxSettings settings = read("[sandbox]\n"
                                              "phone_size = 32M\n"
                                              "card_size = 64M\n"
                                              "phone_size = lots\n" // replaces the 32M
                                              "mtab = ../../etc/passwd\n"
                                              "phonesize = 1M\n",
                                              warnings);
        QCOMPARE(settings.phoneSize, 0);
        QCOMPARE(settings.cardSize, 64 << 20);
        QCOMPARE(settings.mountTable, QStringLiteral("mtab"));
        // The parser's own warning about the repeated key comes first.
        QCOMPARE(warnings.size(), 4);
        QVERIFY(warnings.at(1).startsWith(QLatin1String("dev.ini:4: [sandbox] phone_size:")));
        QVERIFY(warnings.at(2).startsWith(QLatin1String("dev.ini:5: [sandbox] mtab:")));
        QVERIFY(warnings.at(3).startsWith(QLatin1String("dev.ini:6: [sandbox] phonesize:")));
    }

    void mountTableStaysInsideTheDeviceFolder_data()
    {
        QTest::addColumn<QString>("value");
        QTest::addColumn<QString>("used");
        QTest::addColumn<bool>("warned");

        QTest::newRow("subfolder") << "tables/odd.mtab" << "tables/odd.mtab" << false;
        QTest::newRow("cleaned") << "tables/../odd.mtab" << "odd.mtab" << false;
        QTest::newRow("trailing blank") << "odd.mtab " << "odd.mtab" << false;
        QTest::newRow("absolute") << "/proc/mounts" << "mtab" << true;
        QTest::newRow("leaves through a subfolder") << "a/../../x" << "mtab" << true;
        QTest::newRow("empty") << "" << "mtab" << true;
    }

    void mountTableStaysInsideTheDeviceFolder()
    {
        QFETCH(QString, value);
        QFETCH(QString, used);
        QFETCH(bool, warned);
        QStringList warnings;
        const SandboxSettings settings = read("[sandbox]\nmtab = " + value.toUtf8() + '\n', warnings);
        QCOMPARE(settings.mountTable, used);
        QCOMPARE(warnings.size(), warned ? 1 : 0);
    }

    void pathsArePassedAsWritten()
    {
        QStringList warnings;
        const SandboxSettings settings = read("[sandbox]\n"
                                              "data_path = /data//  \n"
                                              "write_path = relative/app\n",
                                              warnings);
        QCOMPARE(settings.dataPath, QStringLiteral("/data//  "));
        QCOMPARE(settings.writePath, QStringLiteral("relative/app"));
        // Only the write path gets a folder, so only it must be absolute.
        QCOMPARE(warnings.size(), 1);
        QVERIFY(warnings.constFirst().startsWith(QLatin1String("dev.ini:3:")));
        QCOMPARE(folderOf(settings.dataPath), QStringLiteral("/data"));
        QCOMPARE(folderOf(settings.writePath), QString());
    }
};

QTEST_GUILESS_MAIN(TestSandboxSettings)
#include "tst_sandboxsettings.moc"
