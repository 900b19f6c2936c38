// Desktop entries, the default application of a type over fixture XDG
// folders, and the command an Exec line gives.
#include "desktop_entry.h"
#include "exec_line.h"
#include "mime_apps.h"

#include <QFile>
#include <QTemporaryDir>
#include <QTest>

using namespace KivHost;

namespace {

// "path|content" rows; a .desktop file's content is added to an application's
// group unless it starts its own.
void writeFiles(const QString &root, const QStringList &files)
{
    for (const QString &file : files) {
        const QString path = root + u'/' + file.section(u'|', 0, 0);
        QByteArray content = file.section(u'|', 1).toUtf8();
        if (path.endsWith(QLatin1String(".desktop")) && !content.startsWith('['))
            content.prepend("[Desktop Entry]\nType=Application\nName=App\nExec=app %f\n");
        QDir().mkpath(QFileInfo(path).path());
        QFile out(path);
        QVERIFY(out.open(QIODevice::WriteOnly));
        out.write(content);
    }
}

} // namespace

class TestXdgApps : public QObject
{
    Q_OBJECT

private slots:
    void desktopEntry_data()
    {
        QTest::addColumn<QByteArray>("content");
        QTest::addColumn<QString>("expected"); // type|name|exec|types|hidden,noDisplay,dbus
        const QByteArray app = "[Desktop Entry]\nType=Application\n";
        QTest::newRow("values unescaped") << app + "Name=a\\sb\\tc\\\\d\\x\nExec=prog \"a\\\\\\\\b\"" << "Application|a b\tc\\d\\x|prog \"a\\\\b\"||000";
        QTest::newRow("escaped ; kept in a list item") << app + "MimeType=a/b\\;c;;d/e;" << "Application|||a/b;c,d/e|000";
        QTest::newRow("booleans") << app + "Hidden=true\nNoDisplay=true \nDBusActivatable=True" << "Application||||110";
        QTest::newRow("localized keys, comments, broken lines ignored") << app + "Name[de]=b\n# c\n\nbroken\nName=a" << "Application|a|||000";
        QTest::newRow("only the first group") << app + "Name=a\n[Desktop Action x]\nExec=x\n[Desktop Entry]\nName=b\nExec=y" << "Application|a|||000";
        QTest::newRow("no group") << QByteArray("Type=Application\nName=a") << "none";
        QTest::newRow("binary file") << QByteArray("\x7f" "ELF\0\xff\xfe[\n=\0", 11) << "none";
    }
    void desktopEntry()
    {
        QFETCH(QByteArray, content);
        QFETCH(QString, expected);
        QTemporaryDir dir;
        QFile file(dir.filePath(QStringLiteral("a.desktop")));
        QVERIFY(file.open(QIODevice::WriteOnly));
        file.write(content);
        file.close();
        const std::optional<DesktopEntry> e = readDesktopEntry(file.fileName(), QStringLiteral("a.desktop"));
        const QString flags = QString::number(e && e->hidden) + QString::number(e && e->noDisplay) + QString::number(e && e->dbusActivatable);
        QCOMPARE(e ? QStringList({e->type, e->name, e->exec, e->mimeTypes.join(u','), flags}).join(u'|') : QStringLiteral("none"), expected);
    }

    void defaultApplication_data()
    {
        QTest::addColumn<QStringList>("files");
        QTest::addColumn<QString>("expected"); // for text/plain
        // Applications a, b and c (which has no MimeType), and mimeapps.list groups.
        const auto app = [](const QString &at, const QString &lines) { return at + QStringLiteral(".desktop|") + lines; };
        const QString a = app("data0/applications/a", "MimeType=text/plain"), b = app("data1/applications/b", "MimeType=text/plain");
        const QString c = app("data1/applications/c", "");
        const auto list = [](const QString &at, const QString &group, const QString &ids) {
            return at + QStringLiteral("mimeapps.list|[") + group + QStringLiteral("]\ntext/plain=") + ids;
        };
        const QString def = "Default Applications", add = "Added Associations", rem = "Removed Associations";
        QTest::newRow("default") << QStringList{a, b, c, list("config0/", def, "c.desktop")} << "c.desktop";
        QTest::newRow("default not installed skipped") << QStringList{a, c, list("config0/", def, "gone.desktop;c.desktop")} << "c.desktop";
        QTest::newRow("default not installed, next list") << QStringList{a, c, list("config0/", def, "gone.desktop"), list("config1/", def, "c.desktop")} << "c.desktop";
        QTest::newRow("no default installed: associations") << QStringList{b, list("config0/", def, "gone.desktop")} << "b.desktop";
        QTest::newRow("config before data folders") << QStringList{a, c, list("data0/applications/", def, "a.desktop"), list("config1/", def, "c.desktop")} << "c.desktop";
        QTest::newRow("desktop's list before the plain one") << QStringList{a, c, list("config0/", def, "a.desktop"), list("config0/gnome-", def, "c.desktop")} << "c.desktop";
        QTest::newRow("other desktop's list unread") << QStringList{a, c, list("config0/kde-", def, "c.desktop")} << "a.desktop";
        QTest::newRow("higher plain list before lower desktop's") << QStringList{a, c, list("config0/", def, "a.desktop"), list("config1/xfce-", def, "c.desktop")} << "a.desktop";
        QTest::newRow("added before MimeType") << QStringList{a, c, list("data1/applications/", add, "c.desktop")} << "c.desktop";
        QTest::newRow("higher folder's addition first") << QStringList{a, b, c, list("config0/", add, "b.desktop"), list("config1/", add, "c.desktop")} << "b.desktop";
        QTest::newRow("removed above drops a lower addition") << QStringList{a, c, list("config0/", rem, "c.desktop"), list("config1/", add, "c.desktop")} << "a.desktop";
        QTest::newRow("removed below keeps a higher addition") << QStringList{a, c, list("config0/", add, "c.desktop"), list("config1/", rem, "c.desktop")} << "c.desktop";
        QTest::newRow("removed drops MimeType") << QStringList{a, b, list("config1/", rem, "a.desktop")} << "b.desktop";
        QTest::newRow("MimeType in data folders' order") << QStringList{b, app("data2/applications/a", "MimeType=text/plain")} << "b.desktop";
        QTest::newRow("id hidden by an earlier data folder") << QStringList{app("data0/applications/b", ""), b} << "";
        QTest::newRow("Hidden not installed, hides later") << QStringList{app("data0/applications/b", "Hidden=true"), b, list("config0/", def, "b.desktop")} << "";
        QTest::newRow("subfolder's id") << QStringList{app("data1/applications/kde/v", ""), list("config0/", def, "kde-v.desktop")} << "kde-v.desktop";
        QTest::newRow("type ignoring case") << QStringList{app("data1/applications/w", "MimeType=x/y;Text/Plain")} << "w.desktop";
        QTest::newRow("escaped ; is no separator") << QStringList{app("data1/applications/w", "MimeType=text/plain\\;x")} << "";
        QTest::newRow("broken list, entry without Type")
            << QStringList{a, b, "config0/mimeapps.list|\x01\x02[Default Applications\ntext/plain=b.desktop",
                           "data0/applications/0.desktop|[Desktop Entry]\nExec=x\nMimeType=text/plain"}
            << "a.desktop";
    }
    void defaultApplication()
    {
        QFETCH(QStringList, files);
        QFETCH(QString, expected);
        QTemporaryDir dir;
        writeFiles(dir.path(), files);
        QProcessEnvironment environment;
        environment.insert(QStringLiteral("XDG_CONFIG_HOME"), dir.filePath(QStringLiteral("config0")));
        environment.insert(QStringLiteral("XDG_CONFIG_DIRS"), dir.filePath(QStringLiteral("config1")));
        environment.insert(QStringLiteral("XDG_DATA_HOME"), dir.filePath(QStringLiteral("data0")));
        environment.insert(QStringLiteral("XDG_DATA_DIRS"), dir.filePath(QStringLiteral("data1")) + u':' + dir.filePath(QStringLiteral("data2")));
        environment.insert(QStringLiteral("XDG_CURRENT_DESKTOP"), QStringLiteral("XFCE:GNOME"));
        QCOMPARE(MimeApps(XdgFolders::fromEnvironment(environment)).defaultApplication(QStringLiteral("text/plain")), expected);
    }

    void folders_data()
    {
        QTest::addColumn<QString>("config");
        QTest::addColumn<QString>("data");
        QTest::addColumn<QString>("expected");
        QTest::newRow("defaults when unset") << QString() << QString() << "/h/.config,/etc/xdg|/h/.local/share,/usr/local/share,/usr/share";
        QTest::newRow("relative folders ignored") << "rel:/c/" << "/d::rel" << "/h/.config,/c|/h/.local/share,/d";
    }
    void folders()
    {
        QFETCH(QString, config);
        QFETCH(QString, data);
        QFETCH(QString, expected);
        QProcessEnvironment environment;
        environment.insert(QStringLiteral("HOME"), QStringLiteral("/h"));
        environment.insert(QStringLiteral("XDG_CONFIG_HOME"), QStringLiteral("config"));
        environment.insert(QStringLiteral("XDG_CONFIG_DIRS"), config);
        environment.insert(QStringLiteral("XDG_DATA_DIRS"), data);
        const XdgFolders folders = XdgFolders::fromEnvironment(environment);
        QCOMPARE(folders.configFolders.join(u',') + u'|' + folders.dataFolders.join(u','), expected);
    }

    void commandLine_data()
    {
        QTest::addColumn<QString>("exec");
        QTest::addColumn<QString>("icon");
        QTest::addColumn<QStringList>("expected");
        QTest::newRow("blanks separate") << "p  a\tb " << "" << QStringList{"p", "a", "b"};
        QTest::newRow("quotes group, empty kept") << "p \"a b\"c \"\"" << "" << QStringList{"p", "a bc", ""};
        QTest::newRow("escapes in quotes") << "p \"\\\"\\`\\$\\\\\" a\\b" << "" << QStringList{"p", "\"`$\\", "a\\b"};
        QTest::newRow("quote left open") << "p \"a" << "" << QStringList();
        QTest::newRow("other escape in quotes") << "p \"\\a\"" << "" << QStringList();
        QTest::newRow("%f first item only") << "p --in=%f" << "" << QStringList{"p", "--in=/x/a b"};
        QTest::newRow("%U every item, file URL as path") << "p %U" << "" << QStringList{"p", "/x/a b", "https://h/a%20b?q"};
        QTest::newRow("%F every item") << "p %F" << "" << QStringList{"p", "/x/a b", "https://h/a%20b?q"};
        QTest::newRow("%i %c %k %%") << "p %i %c %k 100%%" << "ic" << QStringList{"p", "--icon", "ic", "Viewer", "/apps/v.desktop", "100%"};
        QTest::newRow("%i without icon, deprecated codes left out") << "p %i %d %D %n %N %v %m x%m" << "" << QStringList{"p", "x"};
    }
    void commandLine()
    {
        QFETCH(QString, exec);
        QFETCH(QString, icon);
        QFETCH(QStringList, expected);
        DesktopEntry entry;
        entry.exec = exec;
        entry.icon = icon;
        entry.name = QStringLiteral("Viewer");
        entry.path = QStringLiteral("/apps/v.desktop");
        QCOMPARE(KivHost::commandLine(entry, {QStringLiteral("file:///x/a%20b"), QStringLiteral("https://h/a%20b?q")}), expected);
    }
};

QTEST_GUILESS_MAIN(TestXdgApps)
#include "tst_xdg_apps.moc"
