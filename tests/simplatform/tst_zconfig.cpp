#include "ZConfig.h"

#include <QFile>
#include <QRegularExpression>
#include <QTemporaryDir>
#include <QTest>

#include <string_view>

using namespace std::string_view_literals;

// Input bytes, NUL bytes included.
static QByteArray bytes(std::string_view text)
{
    return QByteArray(text.data(), qsizetype(text.size()));
}

// Renders a group's entries as "key=value;..." in the map's (key) order.
static QString rendered(const QMap<QString, QString> &entries)
{
    QStringList parts;
    for (auto entry = entries.cbegin(); entry != entries.cend(); ++entry)
        parts.append(entry.key() + u'=' + entry.value());
    return parts.join(u';');
}

class TestZConfig : public QObject
{
    Q_OBJECT

private slots:
    void groups_data();
    void groups();
    void readEntry_data();
    void readEntry();
    void readNumEntry_data();
    void readNumEntry();
    void folderStructureFile();
    void missingFileIsEmptyAndQuiet();
    void createMakesTheFile();
    void unreadableFileIsEmptyWithWarning();
    void malformedLineIsReported();

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

void TestZConfig::groups_data()
{
    QTest::addColumn<QByteArray>("file");
    QTest::addColumn<QString>("group");
    QTest::addColumn<bool>("exists");
    QTest::addColumn<QString>("entries");

    const auto row = [](const char *name, const QByteArray &file, const QString &group,
                        bool exists, const QString &entries) {
        QTest::newRow(name) << file << group << exists << entries;
    };

    // Names of the folder structure file.
    row("path", "[/tambro/picture]\nb_icon = p.gif", "/tambro/picture", true, "b_icon=p.gif");
    row("blank inside the name", "[/voice records]\nk=v", "/voice records", true, "k=v");
    row("tag and colon", "[//ZELK_PRELOAD:/pic]\nparent_path = /picture", "//ZELK_PRELOAD:/pic",
        true, "parent_path=/picture");
    row("trailing blank is part of the name", "[/music ]\nk=v", "/music ", true, "k=v");
    row("so the trimmed name is another group", "[/music ]\nk=v", "/music", false, "");
    row("blanks around the header", " \t[TOPLEVEL] \t\nk=v", "TOPLEVEL", true, "k=v");
    row("opening bracket inside the name", "[a[b]\nk=v", "a[b", true, "k=v");
    row("names are case-sensitive", "[SortType]\nk=v", "sortType", false, "");
    row("UTF-8 name", "[/m\xC3\xBAsica]\nk=v", "/m\u00FAsica", true, "k=v");
    row("Latin-1 name", "[/m\xFAsica]\nk=v", "/m\u00FAsica", true, "k=v");

    // Malformed headers: the group does not exist and its entries go nowhere.
    row("text after the bracket", "[b] x\nk=v", "b", false, "");
    row("closing bracket inside a would-be name", "[a]b]\nk=v", "a]b", false, "");
    row("no closing bracket", "[a\nk=v", "a", false, "");
    row("empty name", "[]\nk=v", "", false, "");
    row("bad header ends the group before it", "[a]\nk=1\n[b] x\nm=2\n[c]\nn=3", "a", true, "k=1");
    row("NUL in a header ends the group before it", bytes("[a]\nk=1\n[b\0]\nm=2"sv), "a", true,
        "k=1");

    // Existence and order.
    row("group without entries exists", "[empty]\n[full]\nk=v", "empty", true, "");
    row("missing group", "[full]\nk=v", "other", false, "");
    row("ordered by key, not by file", "[g]\nvoice=/v\nimage=/i\ndefault=/d\n[other]\nz=1", "g",
        true, "default=/d;image=/i;voice=/v");
    row("repeated key: last value wins", "[g]\nk=1\nm=2\nk=3", "g", true, "k=3;m=2");
    row("repeated group continues the first", "[g]\na=1\nk=1\n[h]\nb=2\n[g]\nc=3\nk=4", "g", true,
        "a=1;c=3;k=4");

    // Values and line ends.
    row("trailing blanks kept", "[g]\n k  =  v \t\n", "g", true, "k=v \t");
    row("CR LF", "[g]\r\nk = v\r\nm = w\r\n", "g", true, "k=v;m=w");
    row("BOM", "\xEF\xBB\xBF[g]\nk=v", "g", true, "k=v");
    row("BOM of a joined file", "[a]\n\xEF\xBB\xBF[g]\nk=v", "g", true, "k=v");
    row("BOM elsewhere is text", "[a]\n \xEF\xBB\xBF[g]\nk=v", "g", false, "");
    row("no final line break", "[g]\nk=v", "g", true, "k=v");
    row("CR at the very end dropped", "[g]\nk=v\r", "g", true, "k=v");
    row("CR inside a line kept", "[g]\nk=a\rb\n", "g", true, "k=a\rb");
    row("CR alone ends no line", "[g]\rk=v\n", "g", false, "");
    row("Latin-1 value", "[g]\nk=caf\xE9\nm=caf\xC3\xA9", "g", true, "k=caf\u00E9;m=caf\u00E9");

    // Damaged files.
    row("line with a NUL byte dropped", bytes("[g]\nk=v\0w\nm=x"sv), "g", true, "m=x");
    row("binary garbage around a good group",
        bytes("\x89PNG\r\n\x1a\n\0\0\xFF\xFE]]=[\n[g]\nk=v\n\xFF\xD8\xFF\xE0\0\x10JFIF\n"sv), "g",
        true, "k=v");
    row("very long line", "[g]\nk=" + QByteArray(1 << 20, 'v') + "\nm=1", "g", true,
        "k=" + QString(1 << 20, u'v') + ";m=1");
    row("very long name", '[' + QByteArray(1 << 16, 'n') + "]\nk=v", QString(1 << 16, u'n'), true,
        "k=v");
}

void TestZConfig::groups()
{
    QFETCH(QByteArray, file);
    QFETCH(QString, group);
    QFETCH(bool, exists);
    QFETCH(QString, entries);

    const ZConfig config(writeConfig(file), false);
    QMap<QString, QString> found{{"stale", "from an earlier call"}};
    QCOMPARE(config.getGroupEntriesKeyList(group, found), exists);
    QCOMPARE(rendered(found), entries);
}

void TestZConfig::readEntry_data()
{
    QTest::addColumn<QString>("group");
    QTest::addColumn<QString>("key");
    QTest::addColumn<QString>("expected");

    QTest::newRow("value keeps its trailing blank") << "g" << "path" << "/tambro/pic ";
    QTest::newRow("empty value is no default") << "g" << "empty" << "";
    QTest::newRow("keys are case-sensitive") << "g" << "PATH" << "default";
    QTest::newRow("missing key") << "g" << "other" << "default";
    QTest::newRow("missing group") << "h" << "path" << "default";
    QTest::newRow("key of a malformed group") << "bad" << "k" << "default";
}

void TestZConfig::readEntry()
{
    QFETCH(QString, group);
    QFETCH(QString, key);
    QFETCH(QString, expected);

    const ZConfig config(writeConfig("[g]\npath =  /tambro/pic \nempty =\n[bad] !\nk=v\n"), false);
    QCOMPARE(config.readEntry(group, key, QStringLiteral("default")), expected);
}

void TestZConfig::readNumEntry_data()
{
    QTest::addColumn<QString>("key");
    QTest::addColumn<int>("expected");

    QTest::newRow("decimal") << "dec" << 12;
    QTest::newRow("trailing blank") << "blank" << 7;
    QTest::newRow("largest int") << "max" << INT_MAX;
    QTest::newRow("smallest int") << "min" << INT_MIN;
    QTest::newRow("one beyond int gives the default") << "above" << 99;
    QTest::newRow("one below int gives the default") << "below" << 99;
    QTest::newRow("hex beyond int gives the default") << "big" << 99;
    QTest::newRow("empty gives the default") << "empty" << 99;
    QTest::newRow("missing gives the default") << "missing" << 99;
}

void TestZConfig::readNumEntry()
{
    QFETCH(QString, key);
    QFETCH(int, expected);

    const ZConfig config(writeConfig("[sortType]\ndec=12\nblank=7 \nmax=2147483647\n"
                                     "min=-2147483648\nabove=2147483648\nbelow=-2147483649\n"
                                     "big=0x80000000\nempty=\n"),
                         false);
    QCOMPARE(config.readNumEntry("sortType", key, 99), expected);
}

// A folder structure file as the phone ships it, read the way the file
// manager reads it.
void TestZConfig::folderStructureFile()
{
    const ZConfig config(writeConfig("[TAMBRO_KEYWORD]\r\n"
                                     "default = /others\r\n"
                                     "image = /picture\r\n"
                                     "voice = /voice records\r\n"
                                     "[TAMBRO_PSEUDO_KEYWORD]\r\n"
                                     "[TOPLEVEL]\r\n"
                                     "sub_num = 2\r\n"
                                     "sub1 = /picture\r\n"
                                     "[/picture]\r\n"
                                     "preload_path = //ZELK_PRELOAD:/pic\r\n"
                                     "[//ZELK_PRELOAD:/pic]\r\n"
                                     "parent_path = /picture\r\n"),
                         false);
    QMap<QString, QString> entries;
    QVERIFY(config.getGroupEntriesKeyList("TAMBRO_KEYWORD", entries));
    QCOMPARE(rendered(entries),
             QStringLiteral("default=/others;image=/picture;voice=/voice records"));
    QVERIFY(config.getGroupEntriesKeyList("TAMBRO_PSEUDO_KEYWORD", entries));
    QVERIFY(entries.isEmpty());
    QCOMPARE(config.readNumEntry("TOPLEVEL", "sub_num", 0), 2);
    const QString preload = config.readEntry("/picture", "preload_path", QString());
    QCOMPARE(config.readEntry(preload, "parent_path", QString()), QStringLiteral("/picture"));
}

void TestZConfig::missingFileIsEmptyAndQuiet()
{
    QTest::failOnWarning(QRegularExpression(QStringLiteral(".")));
    const QString path = m_dir.filePath(QStringLiteral("missing.cfg"));
    const ZConfig config(path, false);
    QMap<QString, QString> entries;
    QVERIFY(!config.getGroupEntriesKeyList("TAMBRO_KEYWORD", entries));
    QVERIFY(config.readEntry("g", "k", QString()).isNull());
    QCOMPARE(config.readNumEntry("g", "k", -1), -1);
    QVERIFY(!QFile::exists(path));
}

void TestZConfig::createMakesTheFile()
{
    const QString path = m_dir.filePath(QStringLiteral("new.cfg"));
    const ZConfig config(path, true);
    QVERIFY(QFile::exists(path));
    QMap<QString, QString> entries;
    QVERIFY(!config.getGroupEntriesKeyList("g", entries));
}

void TestZConfig::unreadableFileIsEmptyWithWarning()
{
    QTest::ignoreMessage(QtWarningMsg, QRegularExpression(QStringLiteral("cannot create")));
    const ZConfig uncreatable(m_dir.filePath(QStringLiteral("no/such/folder.cfg")), true);
    QCOMPARE(uncreatable.readNumEntry("g", "k", 5), 5);

    QTest::ignoreMessage(QtWarningMsg,
                         QRegularExpression(QStringLiteral("cannot read: is a folder")));
    const ZConfig folder(m_dir.path(), false);
    QMap<QString, QString> entries;
    QVERIFY(!folder.getGroupEntriesKeyList("g", entries));
}

void TestZConfig::malformedLineIsReported()
{
    const QString path = writeConfig("[g]\nk=1\nnonsense\n");
    QTest::ignoreMessage(QtWarningMsg,
                         QRegularExpression(QRegularExpression::escape(path) + QStringLiteral(":3: ")));
    const ZConfig config(path, false);
    QCOMPARE(config.readNumEntry("g", "k", 0), 1);
}

QTEST_GUILESS_MAIN(TestZConfig)
#include "tst_zconfig.moc"
