// Opening files on the sample phone, seen through the journal, each row in a
// process of its own (the launch guard is the process's).
#include <TAMBRO_FileHandle.h>
#include <TAMBRO_Global.h>

#include "scenarios.h"
#include "test_phone.h"

#include <QFile>
#include <QTest>

#include <sys/stat.h>

namespace {

const QString Phone = QStringLiteral("/kivlocal/download/tambro/");

QStringList open(const QString &file, const QString &type, bool preview = true)
{
    TestPhone::clearJournal();
    const int result = TAMBRO_FileHandle(Phone + file, type, Phone + file.section(u'/', 0, 0), nullptr, 7, preview).Handle();
    QStringList requests;
    for (const QByteArray &line : TestPhone::journalLines())
        requests << QString::fromUtf8(line);
    // The feature bit of native packages is asked first, on every call.
    if (requests.value(0) != QLatin1String(R"({"call":"SETUP_Utility::getFlexBit","bit":162})"))
        return {QStringLiteral("no feature bit first")};
    return requests.mid(1) << QString::number(result);
}

QString invoke(const QString &action, const QString &values)
{
    return QStringLiteral(R"({"call":"AM_ActionData::invoke","action":"%1","values":[%2]})").arg(action, values);
}
QString media(const QString &file, const QString &type)
{
    return invoke("MediaPlayerLauncher", R"(["mode","playback"],["uri","file://%1)" + file + R"("],["mediaType",")"
                                             + type + R"("],["callerName","FileManager"])");
}
QString loadUrl(const QString &url) { return R"({"call":"AM_LauncherClient::loadURL","url":")" + url + "\"}"; }
QString document(const QString &file) { return R"({"call":"AM_LauncherClient::openDocument","path":"%1)" + file + "\"}"; }
QString notice(const QString &icon, const QString &title, const QString &text)
{
    return R"({"call":"RES_ICON_Reader::getIcon","name":")" + icon + R"("})" "\n" R"({"call":"ZPopup::exec","title":")"
        + title + R"(","text":")" + text + R"(","type":2})";
}

} // namespace

class TestFileHandle : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase()
    {
        TestPhone::startJournal();
        QFile settings(TAMBRO_Global::getConfigFile());
        QVERIFY(settings.open(QIODevice::WriteOnly) && settings.write("[sortType]\ntambro = 3\n"));
    }

    void dispatch_data()
    {
        QTest::addColumn<QString>("file");
        QTest::addColumn<QString>("type");
        QTest::addColumn<bool>("preview");
        QTest::addColumn<QByteArray>("device"); // replaces the sample's when given
        QTest::addColumn<QString>("requests"); // then Handle()'s result

        const auto row = [](const char *name, const QString &file, const char *type, const QString &requests,
                            bool preview = true, const QByteArray &device = {}) {
            QTest::newRow(name) << file << QString(type) << preview << device << requests;
        };
        row("package installed natively", "applications/weather.mpkg", "mpkg",
            R"({"call":"TAMBRO_UTIL_Interface::QT_Install","packagePath":"%1applications/weather.mpkg"})""\n0");
        row("package without native installs is a document", "applications/weather.mpkg", "mpkg",
            document("applications/weather.mpkg") + "\n0", true, "[flex]\n162=0\n");
        row("bookmark's URL to the browser", "others/bookmarks.vbm", "vbm",
            R"({"call":"TAMBRO_UTIL_Interface::Browser_GetUrl","bookmarkPath":"%1others/bookmarks.vbm"})""\n"
            + loadUrl("http://www.example.com/") + "\n0");
        row("type URL in upper case is no bookmark", "others/news.url", "URL", document("others/news.url") + "\n0");
        row("the type decides rows 1 to 3", "others/news.url", "mms",
            invoke("OpenMMSFile", R"(["FileName","%1others/news.url"])") + "\n0");
        row("contact card by the path, any case", "documents/card.VCF", "txt",
            notice("info_pop.gif", "Cannot Access", "This file can not be accessed via File Manager, please open the "
                                                    "Contacts application to view this file.") + "\n0");
        row("Java archive", "applications/Sudoku.JAR", "jar",
            R"({"call":"TAMBRO_UTIL_Interface::JAVA_Install","path":"%1applications/Sudoku.JAR","descriptorPath":"","installArgument":7})""\n1");
        row("descriptor finds its archive in another case", "applications/Tetris.jad", "jad",
            R"({"call":"TAMBRO_UTIL_Interface::J2ME_JAID_ViewJad","jadPath":"%1applications/Tetris.jad","installArgument":7})""\n"
            R"({"call":"TAMBRO_UTIL_Interface::JAVA_Install","path":"%1applications/tetris.jar","descriptorPath":"%1applications/Tetris.jad","installArgument":7})""\n1");
        row("descriptor without its archive", "applications/Chess.jad", "jad",
            R"({"call":"TAMBRO_UTIL_Interface::J2ME_JAID_ViewJad","jadPath":"%1applications/Chess.jad","installArgument":7})""\n"
                + notice("error_pop.gif", "Installation Failed", "This application cannot be installed because "
                                                                  "one or more of the required files are missing.") + "\n0");
        row("picture preview", "picture/holiday.jpg", "jpg",
            invoke("ViewImagebyName", R"(["Mode","PreviewImageOptions"],["FileName","%1picture/holiday.jpg"])") + "\n0");
        row("picture in the settings' sort order", "picture/holiday.jpg", "jpg",
            invoke("ViewImagebyName", R"(["FileName","%1picture/holiday.jpg"],["SortType",3],["TargetView","normal"])") + "\n0", false);
        row("upper-case extension plays", "audio/LOUD.MP3", "mp3", media("audio/LOUD.MP3", "AUDIO") + "\n0");
        row("asf, in both lists, plays as audio", "video/stream.asf", "asf", media("video/stream.asf", "AUDIO") + "\n0");
        row("video", "video/movie.3GP", "3gp", media("video/movie.3GP", "VIDEO") + "\n0");
        row("a fragment of a list member plays", "audio/tone.mi", "mi", media("audio/tone.mi", "AUDIO") + "\n0");
        row("a bare trailing dot plays as audio", "audio/memo.", "", media("audio/memo.", "AUDIO") + "\n0");
        row("anything else is a document", "documents/readme.txt", "txt", document("documents/readme.txt") + "\n0");
    }

    void dispatch()
    {
        QFETCH(QString, file);
        QFETCH(QString, type);
        QFETCH(bool, preview);
        QFETCH(QByteArray, device);
        QFETCH(QString, requests);
        if (!device.isEmpty())
            TestPhone::setDevice(device);
        QCOMPARE(open(file, type, preview).join(u'\n'), QString(requests).replace("%1", Phone));
    }

    // No more than one media or document launch in two seconds; pictures are
    // never held back, and a launch held back late in the period does not
    // start a new one.
    void launchGuard()
    {
        QCOMPARE(open("audio/LOUD.MP3", "mp3").size(), 2);
        QCOMPARE(open("picture/holiday.jpg", "jpg").size(), 2);
        QTest::qSleep(1500);
        QCOMPARE(open("audio/LOUD.MP3", "mp3"), QStringList{"0"});
        QTest::qSleep(600);
        QCOMPARE(open("documents/readme.txt", "txt").size(), 2);
    }

    // Run without the services library: the rows that need it quietly do nothing useful.
    void missingServicesLibrary()
    {
        QCOMPARE(open("others/news.url", "url"), (QStringList{loadUrl(""), "0"}));
        QCOMPARE(open("applications/Chess.jad", "jad"), QStringList{"0"});
        QCOMPARE(open("applications/Sudoku.JAR", "jar"), QStringList{"0"});
    }

    // Under the write path, its folder made only when missing (and not its
    // parents), folder and file open to everyone, but a link planted there
    // left as it is; the environment read each time.
    void settingsFile()
    {
        const auto mode = [](const char *path) { struct stat info; return stat(path, &info) ? 0 : info.st_mode & 07777; };
        const char *settings = "/kivlocal/appdata/setup/kiv_tambro.cfg";
        QVERIFY(QFile::setPermissions(settings, QFile::ReadOwner));
        for (const char *path : {" /kivlocal/appdata/ ", "/kivlocal/appdata"}) {
            qputenv("KIV_APP_WRITE_PATH", path);
            QCOMPARE(TAMBRO_Global::getConfigFile(), QString(settings));
        }
        QCOMPARE(mode("/kivlocal/appdata/setup"), 0777u);
        QCOMPARE(mode(settings), 0777u);
        QFile other("/kivlocal/appdata/other");
        QVERIFY(other.open(QIODevice::WriteOnly) && other.setPermissions(QFile::ReadOwner | QFile::WriteOwner));
        QVERIFY(QFile::remove(settings) && QFile::link(other.fileName(), settings));
        TAMBRO_Global::getConfigFile();
        QCOMPARE(mode(settings), 0600u); // the link's target's
        qputenv("KIV_APP_WRITE_PATH", "/kivlocal/appdata/new/deeper");
        QCOMPARE(TAMBRO_Global::getConfigFile(), QStringLiteral("/kivlocal/appdata/new/deeper/setup/kiv_tambro.cfg"));
        QVERIFY(!QFile::exists("/kivlocal/appdata/new"));
        qunsetenv("KIV_APP_WRITE_PATH");
        QCOMPARE(TAMBRO_Global::getConfigFile(), QStringLiteral("/setup/kiv_tambro.cfg"));
    }

    // Asked once per process, even of a feature table that cannot answer.
    void featureSwitchesAreAskedOnce()
    {
        TestPhone::setDevice("[flex]\n205 = 1\n");
        for (int round = 0; round < 2; ++round)
            QVERIFY(TAMBRO_Global::getEmailFlexFlag() && !TAMBRO_Global::getBlogCenterFlexFlag());
        QCOMPARE(TestPhone::journalled("SETUP_Utility::getFlexBit", "bit").size(), 2);
    }

    void openFileNeedsAnExistingFile()
    {
        TestPhone::clearJournal();
        QCOMPARE(TAMBRO_OpenFile(Phone + "documents/missing.txt", 0), 0);
        QVERIFY(TestPhone::journalLines().isEmpty());
        QCOMPARE(TAMBRO_OpenFile(Phone + "applications/Chess.jad", 0), 1); // whatever became of it
    }
};

KIVTAMBRO_SCENARIO_MAIN(TestFileHandle, {{"missingServicesLibrary", {QString(), {"-LD_LIBRARY_PATH"}}}},
                        QStringLiteral(SAMPLE_DEVICE))
#include "tst_file_handle.moc"
