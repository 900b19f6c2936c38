// The tambro tool as a user runs it: on the sample phone, through kivsim.
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QProcess>
#include <QTest>

namespace {

struct Run
{
    int exitCode = -1;
    QString out;
    QString err;
};

Run tambro(const QStringList &arguments)
{
    QProcess process;
    process.start(QStringLiteral(KIVSIM_PATH),
                  QStringList{QStringLiteral("--device"), QStringLiteral(SAMPLE_DEVICE),
                              QStringLiteral("--"), QStringLiteral(TAMBRO_PATH)}
                      + arguments);
    if (!process.waitForFinished(60000))
        qFatal("tambro did not finish");
    return {process.exitCode(), QString::fromUtf8(process.readAllStandardOutput()),
            QString::fromUtf8(process.readAllStandardError())};
}

} // namespace

class TestTambroCli : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void storageTableIsAligned()
    {
        const Run run = tambro({QStringLiteral("storage")});
        QCOMPARE(run.exitCode, 0);
        const QStringList lines = run.out.split(QLatin1Char('\n'), Qt::SkipEmptyParts);
        QCOMPARE(lines.size(), 4);
        QVERIFY(lines.at(0).startsWith(QStringLiteral("#  KIND")));
        QVERIFY(lines.at(1).contains(QStringLiteral("My Files")));
        QVERIFY(lines.at(3).contains(QStringLiteral("Memory Card")));
        // Every column starts where its header does.
        const qsizetype status = lines.at(0).indexOf(QStringLiteral("STATUS"));
        for (const QString &line : lines.mid(1))
            QVERIFY2(line.mid(status).startsWith(QStringLiteral("ready")), qPrintable(line));
    }

    void storageJson()
    {
        const Run run = tambro({QStringLiteral("storage"), QStringLiteral("--json")});
        QCOMPARE(run.exitCode, 0);
        QJsonParseError error;
        const QJsonArray partitions = QJsonDocument::fromJson(run.out.toUtf8(), &error).array();
        QCOMPARE(error.error, QJsonParseError::NoError);
        QCOMPARE(partitions.size(), 3);
        const QJsonObject phone = partitions.at(0).toObject();
        QCOMPARE(phone[QStringLiteral("number")].toInt(), 1);
        QCOMPARE(phone[QStringLiteral("kind")].toString(), QStringLiteral("phone"));
        QCOMPARE(phone[QStringLiteral("path")].toString(), QStringLiteral("/kivlocal/download/tambro"));
        QCOMPARE(partitions.at(1).toObject()[QStringLiteral("kind")].toString(), QStringLiteral("megasim"));
        const QJsonObject card = partitions.at(2).toObject();
        QCOMPARE(card[QStringLiteral("name")].toString(), QStringLiteral("Memory Card"));
        QVERIFY(!card[QStringLiteral("label")].toString().isEmpty());
        QCOMPARE(card[QStringLiteral("writeProtected")].toBool(), false);
    }

    void usage_data()
    {
        QTest::addColumn<QStringList>("arguments");
        QTest::addColumn<int>("exitCode");
        QTest::addColumn<bool>("usageOnStdout");

        QTest::newRow("no argument") << QStringList() << 0 << true;
        QTest::newRow("help") << QStringList{QStringLiteral("--help")} << 0 << true;
        QTest::newRow("unknown command") << QStringList{QStringLiteral("format")} << 2 << false;
        QTest::newRow("unknown option") << QStringList{QStringLiteral("storage"), QStringLiteral("--bogus")} << 2 << false;
        QTest::newRow("extra argument") << QStringList{QStringLiteral("storage"), QStringLiteral("now")} << 2 << false;
    }

    void usage()
    {
        QFETCH(QStringList, arguments);
        QFETCH(int, exitCode);
        QFETCH(bool, usageOnStdout);
        const Run run = tambro(arguments);
        QCOMPARE(run.exitCode, exitCode);
        QCOMPARE(run.out.contains(QStringLiteral("Usage: tambro")), usageOnStdout);
        QCOMPARE(run.err.contains(QStringLiteral("Usage: tambro")), !usageOnStdout);
    }
};

QTEST_GUILESS_MAIN(TestTambroCli)
#include "tst_tambro_cli.moc"
