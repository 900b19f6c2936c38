// The tambro tool as a user runs it: on the sample phone, through kivsim.
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QProcess>
#include <QImage>
#include <QTemporaryDir>
#include <QTest>

namespace {

struct Run
{
    int exitCode = -1;
    QString out;
    QString err;
};

Run tambro(const QStringList &arguments, const QString &language = QStringLiteral("C.UTF-8"),
          const QString &shared = QString())
{
    QProcess process;
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert(QStringLiteral("LANG"), language);
    environment.insert(QStringLiteral("LC_ALL"), language);
    process.setProcessEnvironment(environment);
    QStringList kivsim{QStringLiteral("--device"), QStringLiteral(SAMPLE_DEVICE)};
    if (!shared.isEmpty())
        kivsim << QStringLiteral("--share") << shared;
    process.start(QStringLiteral(KIVSIM_PATH),
                  kivsim + QStringList{QStringLiteral("--"), QStringLiteral(TAMBRO_PATH)} + arguments);
    if (!process.waitForFinished(60000))
        qFatal("tambro did not finish");
    return {process.exitCode(), QString::fromUtf8(process.readAllStandardOutput()),
            QString::fromUtf8(process.readAllStandardError())};
}

QJsonObject foldersJson(const QString &language = QStringLiteral("C.UTF-8"))
{
    const Run run = tambro({QStringLiteral("folders"), QStringLiteral("--json")}, language);
    if (run.exitCode != 0)
        qFatal("tambro folders failed: %s", qPrintable(run.err));
    return QJsonDocument::fromJson(run.out.toUtf8()).object();
}

QJsonObject entryWith(const QJsonArray &entries, const QString &field, const QString &value)
{
    for (const QJsonValue &entry : entries) {
        if (entry.toObject()[field].toString() == value)
            return entry.toObject();
    }
    return {};
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

    void foldersShowKeyWordsAndTheirState()
    {
        const QJsonObject structure = foldersJson();
        const QString root = QStringLiteral("/kivlocal/download/tambro");
        QCOMPARE(structure[QStringLiteral("root")].toString(), root);
        QCOMPARE(structure[QStringLiteral("defaultFolder")].toString(), root + "/others");
        const QJsonArray keyWords = structure[QStringLiteral("keyWords")].toArray();
        const QJsonObject image = entryWith(keyWords, QStringLiteral("key"), QStringLiteral("image"));
        QCOMPARE(image[QStringLiteral("path")].toString(), root + "/picture");
        QCOMPARE(image[QStringLiteral("onDisk")].toString(), QStringLiteral("yes"));
        QCOMPARE(image[QStringLiteral("name")].toString(), QStringLiteral("Pictures"));
        QCOMPARE(image[QStringLiteral("smallIcon")].toString(), QStringLiteral("fm_pict_folder_small.gif"));
        // The sample phone has no themes folder: the library makes it.
        const QJsonObject theme = entryWith(keyWords, QStringLiteral("key"), QStringLiteral("theme"));
        QCOMPARE(theme[QStringLiteral("onDisk")].toString(), QStringLiteral("created"));
        // Pseudo key words' folders are never made.
        const QJsonObject camera = entryWith(keyWords, QStringLiteral("key"), QStringLiteral("camera"));
        QCOMPARE(camera[QStringLiteral("kind")].toString(), QStringLiteral("pseudo"));
        QCOMPARE(camera[QStringLiteral("onDisk")].toString(), QStringLiteral("missing"));
    }

    void foldersShowPreloadedFoldersWithParents()
    {
        const QJsonArray preloaded = foldersJson()[QStringLiteral("preloadedFolders")].toArray();
        const QJsonObject pictures =
            entryWith(preloaded, QStringLiteral("group"), QStringLiteral("//ZELK_PRELOAD:/pic"));
        QCOMPARE(pictures[QStringLiteral("path")].toString(), QStringLiteral("/usr/data_resource/pic"));
        QCOMPARE(pictures[QStringLiteral("parentPath")].toString(),
                 QStringLiteral("/kivlocal/download/tambro/picture"));
        QCOMPARE(pictures[QStringLiteral("parentName")].toString(), QStringLiteral("Pictures"));
        QCOMPARE(pictures[QStringLiteral("files")].toArray().size(), 2);
        const QJsonObject videos =
            entryWith(preloaded, QStringLiteral("group"), QStringLiteral("//ZELK_PRELOAD:/video"));
        QCOMPARE(videos[QStringLiteral("onDisk")].toString(), QStringLiteral("missing"));
    }

    void foldersInGermanShowGermanNames()
    {
        const QJsonObject structure = foldersJson(QStringLiteral("de_DE.UTF-8"));
        const QJsonObject image = entryWith(structure[QStringLiteral("keyWords")].toArray(),
                                            QStringLiteral("key"), QStringLiteral("image"));
        QCOMPARE(image[QStringLiteral("name")].toString(), QStringLiteral("Bilder"));
        const QJsonObject pictures = entryWith(structure[QStringLiteral("preloadedFolders")].toArray(),
                                               QStringLiteral("group"), QStringLiteral("//ZELK_PRELOAD:/pic"));
        QCOMPARE(pictures[QStringLiteral("name")].toString(), QStringLiteral("Vorinstallierte Bilder"));
        QCOMPARE(pictures[QStringLiteral("parentName")].toString(), QStringLiteral("Bilder"));
        const QJsonObject frame = entryWith(pictures[QStringLiteral("files")].toArray(),
                                            QStringLiteral("path"), QStringLiteral("/usr/data_resource/pic/frame.gif"));
        QCOMPARE(frame[QStringLiteral("name")].toString(), QStringLiteral("Rahmen.gif"));
    }

    void foldersTableHasEverySection()
    {
        const Run run = tambro({QStringLiteral("folders")});
        QCOMPARE(run.exitCode, 0);
        for (const char *heading : {"Default folder", "KEY WORD", "PRELOADED FOLDER", "PRELOADED FILE"})
            QVERIFY2(run.out.contains(QLatin1String(heading)), heading);
        QVERIFY(run.out.contains(QStringLiteral("/kivlocal/download/tambro/voice records")));
    }

    void typeShowsKindsAndIcons()
    {
        const Run run = tambro({QStringLiteral("type"), QStringLiteral("--json"),
                                QStringLiteral("Sunset.JPG"), QStringLiteral("/usr/data_resource/ringtones/Alert.mid")});
        QCOMPARE(run.exitCode, 0);
        const QJsonArray names = QJsonDocument::fromJson(run.out.toUtf8()).array();
        QCOMPARE(names.size(), 2);
        const QJsonObject photo = names.at(0).toObject();
        QVERIFY(photo[QStringLiteral("image")].toBool());
        QVERIFY(photo[QStringLiteral("jpg")].toBool());
        QCOMPARE(photo[QStringLiteral("bigIcon")].toString(), QStringLiteral("fm_pic_thb.gif"));
        QCOMPARE(photo[QStringLiteral("smallIcon")].toString(), QStringLiteral("fm_pic_small.gif"));
        QVERIFY(names.at(1).toObject()[QStringLiteral("ringTone")].toBool());
    }

    void typeTakesNamesAfterDoubleDashAsNames()
    {
        const Run run = tambro({"type", "--json", "--", "-platform", "--json", "x.mp3"});
        QCOMPARE(run.exitCode, 0);
        QStringList names;
        for (const QJsonValue &answers : QJsonDocument::fromJson(run.out.toUtf8()).array())
            names << answers.toObject()[QStringLiteral("name")].toString();
        QCOMPARE(names, (QStringList{"-platform", "--json", "x.mp3"}));
    }

    void lsListsFoldersFirstThenFilesByName()
    {
        const Run run = tambro({QStringLiteral("ls"), QStringLiteral("--json"),
                                QStringLiteral("/kivlocal/download/tambro/picture")});
        QCOMPARE(run.exitCode, 0);
        const QJsonObject listing = QJsonDocument::fromJson(run.out.toUtf8()).object();
        QCOMPARE(listing[QStringLiteral("title")].toString(), QStringLiteral("Pictures"));
        QStringList names;
        for (const QJsonValue &entry : listing[QStringLiteral("entries")].toArray())
            names << entry.toObject()[QStringLiteral("name")].toString();
        QCOMPARE(names, (QStringList{"banner.bmp", "flowers.jpeg", "holiday.jpg", "logo.png",
                                     "operator.wbmp", "smiley.gif", "sunset.JPG"}));
    }

    void lsDrawsThePhoneScreen()
    {
        QTemporaryDir shared;
        const QString picture = shared.filePath(QStringLiteral("root.png"));
        const Run run = tambro({QStringLiteral("ls"), QStringLiteral("--png"), picture},
                               QStringLiteral("C.UTF-8"), shared.path());
        QCOMPARE(run.exitCode, 0);
        const QImage screen(picture);
        QCOMPARE(screen.size(), QSize(240, 320));
    }

    void lsOfAMissingFolderFails()
    {
        const Run run = tambro({QStringLiteral("ls"), QStringLiteral("/no/such/folder")});
        QCOMPARE(run.exitCode, 1);
        QVERIFY(run.err.contains(QStringLiteral("/no/such/folder")));
    }

    void usage_data()
    {
        QTest::addColumn<QStringList>("arguments");
        QTest::addColumn<int>("exitCode");
        QTest::addColumn<bool>("usageOnStdout");

        QTest::newRow("no command") << QStringList() << 2 << false;
        QTest::newRow("help") << QStringList{QStringLiteral("--help")} << 0 << true;
        QTest::newRow("unknown command") << QStringList{QStringLiteral("format")} << 2 << false;
        QTest::newRow("unknown option") << QStringList{QStringLiteral("storage"), QStringLiteral("--bogus")} << 2 << false;
        QTest::newRow("extra argument") << QStringList{QStringLiteral("storage"), QStringLiteral("now")} << 2 << false;
        QTest::newRow("type without a name") << QStringList{QStringLiteral("type")} << 2 << false;
        QTest::newRow("ls of two folders") << QStringList{QStringLiteral("ls"), QStringLiteral("/a"), QStringLiteral("/b")} << 2 << false;
        QTest::newRow("png for a command that does not draw") << QStringList{QStringLiteral("storage"), QStringLiteral("--png"), QStringLiteral("x.png")} << 2 << false;
        QTest::newRow("png and json together") << QStringList{QStringLiteral("ls"), QStringLiteral("--png"), QStringLiteral("x.png"), QStringLiteral("--json")} << 2 << false;
        QTest::newRow("extra argument to folders") << QStringList{QStringLiteral("folders"), QStringLiteral("/x")} << 2 << false;
        QTest::newRow("empty folder name") << QStringList{QStringLiteral("ls"), QString()} << 2 << false;
        // Qt's own options are no options of tambro's, and never eat a name.
        QTest::newRow("Qt option") << QStringList{"type", "-qwindowtitle", "song.mp3", "b.mp3"} << 2 << false;
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
