// Opening files on the sample phone, seen through the journal, and the
// services library holder, whose every method reaches its own slot with its
// arguments and returns the object's result, or answers its default. Each row
// runs in a process of its own (the launch guard is the process's).
#include <TAMBRO_DYNAMIC_Interface.h>
#include <TAMBRO_FileHandle.h>
#include <TAMBRO_Global.h>

#include "scenarios.h"
#include "test_phone.h"

#include <QFile>
#include <QTest>

#include <dlfcn.h>
#include <functional>
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

using Forward = std::function<int(TAMBRO_DYNAMIC_Interface &)>;

struct Operation
{
    const char *name;
    Forward call;
    const char *slotAndArguments; // as the test library notes them
    int fallback; // the answer without a service object
};

// Browser_GetUrl answers nothing: 1 when it changed its output.
const Operation Operations[] = {
    {"J2ME_JAID_ViewJad", [](TAMBRO_DYNAMIC_Interface &s) { QString a; int n = 0; bool need = false;
         const int r = s.J2ME_JAID_ViewJad("d.jad", a, n, need, 9);
         return (a == "Out.jar" && n == 5 && need) || (a.isNull() && n == 0 && !need) ? r : -99; },
     "1:d.jad,9", 1},
    {"JAVA_Install", [](auto &s) { return s.JAVA_Install("a.jar", "d.jad", 9); }, "2:a.jar,d.jad,9", 0},
    {"JAVA_Uninstall", [](auto &s) { return s.JAVA_Uninstall(-3, true, 4000000000u); }, "3:-3,true,4000000000", 0},
    {"QT_Install", [](auto &s) { return s.QT_Install("p.mpkg"); }, "4:p.mpkg", 0},
    {"MP_Preview", [](auto &s) { return s.MP_Preview("x", "y"); }, "5:x,y", -1},
    {"ME_Preview", [](auto &s) { return s.ME_Preview("m"); }, "6:m", 0},
    {"GLINT_Preview", [](auto &s) { return s.GLINT_Preview("g"); }, "7:g", 0},
    {"Browser_EditBookmark", [](auto &s) { return s.Browser_EditBookmark("b"); }, "8:b", 0},
    {"BlueTooth_ShareFiles", [](auto &s) { QStringList f{"1", "2"}; return s.BlueTooth_ShareFiles(f); }, "9:1,2", 0},
    {"Browser_AddBookmark()", [](auto &s) { return s.Browser_AddBookmark(); }, "10:", 0},
    {"Browser_AddBookmark(path)", [](auto &s) { return s.Browser_AddBookmark("k"); }, "11:k", 0},
    {"Browser_GetUrl", [](auto &s) { QString url = "kept"; s.Browser_GetUrl("u.url", url); return url == "kept" ? 0 : 112; },
     "12:u.url", 0},
    {"UpdateBookmarkTitle", [](auto &s) { return s.UpdateBookmarkTitle("t"); }, "13:t", 0},
    {"Email_ShareFiles", [](auto &s) { QStringList f{"e"}; return s.Email_ShareFiles(f); }, "14:e", 0},
    {"Theme_ApplytoFile", [](auto &s) { return s.Theme_ApplytoFile("w", TAMBRO_APPLY_RING_TONE); }, "15:w,2", 0},
    {"SDMgr_ApplytoFile", [](auto &s) { return s.SDMgr_ApplytoFile("c", false); }, "16:c,false", 0},
    {"QuickSend_GetContact", [](auto &s) { QString a, b; const int r = s.QuickSend_GetContact(a, b);
         return a == "Anna" && b == "555" ? r : a.isNull() && b.isNull() ? r : -99; }, "17:", 0},
    {"QuickSend_SendMessage", [](auto &s) { return s.QuickSend_SendMessage("to", "sub", "body", true); },
     "18:to,sub,body,true", 0},
    {"PRTCTR_GetPrintMethods", [](auto &s) { int m = 6; return s.PRTCTR_GetPrintMethods(&m); }, "19:6", 0},
    {"PRTCTR_IsIndexSupported", [](auto &s) { return s.PRTCTR_IsIndexSupported(8); }, "20:8", 0},
    {"PRTCTR_Print", [](auto &s) { return s.PRTCTR_Print(1, true, {"f"}); }, "21:1,true,f", -1},
};

void *loadedLibrary()
{
    return dlopen("libkivtambro_util.so", RTLD_NOW | RTLD_NOLOAD);
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
    // Each row runs with its own library on the library path.
    void holder_data()
    {
        QTest::addColumn<bool>("forwards"); // else every method answers its default
        QTest::addColumn<bool>("loaded"); // while the holder lives
        QTest::addColumn<bool>("deleted"); // the object, through the library's delete function

        QTest::newRow("complete") << true << true << true;
        QTest::newRow("no delete function: closed all the same") << true << true << false;
        QTest::newRow("no factory") << false << true << false;
        QTest::newRow("null factory") << false << true << false;
        QTest::newRow("no library") << false << false << false;
    }

    void holder()
    {
        QFETCH(bool, forwards);
        QFETCH(bool, loaded);
        QFETCH(bool, deleted);
        {
            TAMBRO_DYNAMIC_Interface services;
            void *library = loadedLibrary();
            QCOMPARE(library != nullptr, loaded);
            const auto lastCall = reinterpret_cast<const char *(*)()>(library ? dlsym(library, "slotServicesLastCall") : nullptr);
            for (int slot = 1; slot <= int(std::size(Operations)); ++slot) {
                const Operation &operation = Operations[slot - 1];
                QCOMPARE(operation.call(services), forwards ? 100 + slot : operation.fallback);
                if (forwards)
                    QCOMPARE(QByteArray(lastCall()), QByteArray(operation.slotAndArguments));
            }
            if (library)
                dlclose(library);
        }
        QCOMPARE(qgetenv("SLOT_SERVICES_DELETED") == "1", deleted);
        QVERIFY(!loadedLibrary()); // unloaded with the holder
    }
};

const QString Variants = QStringLiteral(SLOT_SERVICES_DIR);

KIVTAMBRO_SCENARIO_MAIN(TestFileHandle,
                        {{"missingServicesLibrary", {QString(), {"-LD_LIBRARY_PATH"}}},
                         {"holder:complete", {QString(), {"LD_LIBRARY_PATH=" + Variants + "/complete"}}},
                         // Nothing can free the object then: not a leak of the library's.
                         {"holder:no delete function: closed all the same",
                          {QString(), {"LD_LIBRARY_PATH=" + Variants + "/nodelete", "LSAN_OPTIONS=detect_leaks=0"}}},
                         {"holder:no factory", {QString(), {"LD_LIBRARY_PATH=" + Variants + "/nofactory"}}},
                         {"holder:null factory", {QString(), {"LD_LIBRARY_PATH=" + Variants + "/nullfactory"}}},
                         {"holder:no library", {QString(), {"-LD_LIBRARY_PATH"}}}},
                        QStringLiteral(SAMPLE_DEVICE))
#include "tst_file_handle.moc"
