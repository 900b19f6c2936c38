#include "ZConfig.h"

#include <QFile>
#include <QRegularExpression>
#include <QTemporaryDir>
#include <QTest>

class TestZConfig : public QObject
{
    Q_OBJECT

private slots:
    void missingFileIsEmpty();
    void groupEntriesOrderedByKey();
    void readEntryKeepsTrailingBlank();
    void readNumEntry_data();
    void readNumEntry();
    void malformedLineIsReported();
    void createMakesTheFile();

private:
    QString writeConfig(const QByteArray &content)
    {
        const QString path = m_dir.filePath(QStringLiteral("config.cfg"));
        QFile file(path);
        if (!file.open(QIODevice::WriteOnly | QIODevice::Truncate) || file.write(content) < 0)
            qFatal("cannot write %s", qPrintable(path));
        return path;
    }

    QTemporaryDir m_dir;
};

void TestZConfig::missingFileIsEmpty()
{
    const ZConfig config(m_dir.filePath(QStringLiteral("missing.cfg")), false);
    QVERIFY(config.getGroupEntriesKeyList("TAMBRO_KEYWORD").isEmpty());
    QVERIFY(config.readEntry("g", "k", QString()).isNull());
    QCOMPARE(config.readNumEntry("g", "k", -1), -1);
    QVERIFY(!QFile::exists(m_dir.filePath(QStringLiteral("missing.cfg"))));
}

void TestZConfig::groupEntriesOrderedByKey()
{
    const ZConfig config(writeConfig("[g]\nvoice=/v\nimage=/i\ndefault=/d\n[other]\nz=1"), false);
    const QMap<QString, QString> entries = config.getGroupEntriesKeyList("g");
    QCOMPARE(entries.keys(), (QStringList{"default", "image", "voice"}));
    QCOMPARE(entries.value("image"), QStringLiteral("/i"));
}

void TestZConfig::readEntryKeepsTrailingBlank()
{
    const ZConfig config(writeConfig("[g]\npath =  /tambro/pic \n"), false);
    QCOMPARE(config.readEntry("g", "path", QString()), QStringLiteral("/tambro/pic "));
    QCOMPARE(config.readEntry("g", "PATH", "fallback"), QStringLiteral("fallback"));
}

void TestZConfig::readNumEntry_data()
{
    QTest::addColumn<QString>("key");
    QTest::addColumn<int>("expected");

    QTest::newRow("decimal") << "dec" << 12;
    QTest::newRow("negative") << "neg" << -3;
    QTest::newRow("hex") << "hex" << 16;
    QTest::newRow("garbage gives the default") << "bad" << 99;
    QTest::newRow("beyond int gives the default") << "big" << 99;
    QTest::newRow("empty gives the default") << "empty" << 99;
    QTest::newRow("missing gives the default") << "missing" << 99;
}

void TestZConfig::readNumEntry()
{
    QFETCH(QString, key);
    QFETCH(int, expected);

    const ZConfig config(
        writeConfig("[sortType]\ndec=12\nneg=-3\nhex=0x10\nbad=12x\nbig=0x100000000\nempty=\n"), false);
    QCOMPARE(config.readNumEntry("sortType", key, 99), expected);
}

void TestZConfig::malformedLineIsReported()
{
    const QString path = writeConfig("[g]\nk=1\nnonsense\n");
    QTest::ignoreMessage(QtWarningMsg,
                         QRegularExpression(QRegularExpression::escape(path) + QStringLiteral(":3: ")));
    const ZConfig config(path, false);
    QCOMPARE(config.readNumEntry("g", "k", 0), 1);
}

void TestZConfig::createMakesTheFile()
{
    const QString path = m_dir.filePath(QStringLiteral("new.cfg"));
    const ZConfig config(path, true);
    QVERIFY(QFile::exists(path));
    QVERIFY(config.getGroupEntriesKeyList("g").isEmpty());
}

QTEST_GUILESS_MAIN(TestZConfig)
#include "tst_zconfig.moc"
