// Configuration files: the key-file parser that every ini file of the phone
// goes through, and the ZConfig reader built on it.
#include "ZConfig.h"
#include "keyfile.h"

#include <QRegularExpression>
#include <QTemporaryDir>
#include <QTest>

#include <sys/stat.h>

namespace {

// What the parser kept, as "[section] key=value;..." to compare whole results.
QString dump(const KeyFile &file)
{
    QStringList parts;
    for (const KeyFile::Section &section : file.sections()) {
        QStringList entries;
        for (const KeyFile::Entry &entry : section.entries)
            entries.append(entry.key + u'=' + entry.value);
        parts.append(u'[' + section.name + QStringLiteral("] ") + entries.join(u';'));
    }
    return parts.join(u'|');
}

QList<int> warnedLines(const KeyFile &file)
{
    QList<int> lines;
    for (const QString &warning : file.warnings())
        lines.append(warning.section(u':', 1, 1).toInt());
    return lines;
}

} // namespace

class TestKeyFile : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void parse_data()
    {
        QTest::addColumn<QByteArray>("input");
        QTest::addColumn<QString>("expected");
        QTest::addColumn<QList<int>>("warnings");

        QTest::newRow("blanks and comments; value keeps trailing blanks, not leading")
            << QByteArray("\n  # c\n; c\n[a]\n\n   ;k=v\n\t\nn = v # no comment\n  k  =   v w \t\nm=b=c\ne=")
            << "[a] n=v # no comment;k=v w \t;m=b=c;e=" << QList<int>{};
        QTest::newRow("one CR before the line end dropped, others kept")
            << QByteArray("[a]\r\nk = v\r\r\nm=x\ry") << "[a] k=v\r;m=x\ry" << QList<int>{};
        QTest::newRow("byte order mark, also of a joined file")
            << QByteArray("\xEF\xBB\xBF[a]\nk=v\n\xEF\xBB\xBF[b]\nm=w") << "[a] k=v|[b] m=w" << QList<int>{};
        QTest::newRow("section name as written, blanks and brackets included")
            << QByteArray("\t [ /music ] \t\nk=v\n[a[b]\nm=w\n[//ZELK_PRELOAD:/pic]\nn=x")
            << "[ /music ] k=v|[a[b] m=w|[//ZELK_PRELOAD:/pic] n=x" << QList<int>{};
        QTest::newRow("bad headers keep their entries out of the section before")
            << QByteArray("[a]\nk=1\n[b] x\nm=2\n[c\0]\nn=3\n[d\no=4", 33) << "[a] k=1" << QList<int>{3, 5, 7};
        QTest::newRow("line without equals sign, or without key")
            << QByteArray("[a]\nk=v\ngarbage\n = v\nm=w") << "[a] k=v;m=w" << QList<int>{3, 4};
        QTest::newRow("repeated section continues the first; duplicate key: last value, first place")
            << QByteArray("[a]\nk=1\nm=2\n[b]\nx=2\n[a]\nk=3\nn=4") << "[a] k=3;m=2;n=4|[b] x=2" << QList<int>{7};
        QTest::newRow("NUL byte drops only its line")
            << QByteArray("[a]\nk=v\0w\nm=x", 13) << "[a] m=x" << QList<int>{2};
        QTest::newRow("invalid UTF-8 line read as Latin-1")
            << QByteArray("[a]\nk=\xE9t\xE9\nm=\xC3\xA9") << "[a] k=\u00E9t\u00E9;m=\u00E9" << QList<int>{};
        QTest::newRow("binary garbage around a good section")
            << QByteArray("\x89PNG\r\n\x1a\n\0\0\xFF\xFE]]=[\n[g]\nk=v\n", 24) << "[g] k=v" << QList<int>{1, 2, 3};
    }

    void parse()
    {
        QFETCH(QByteArray, input);
        QFETCH(QString, expected);
        QFETCH(QList<int>, warnings);
        const KeyFile file = KeyFile::parse(input, QStringLiteral("dev.ini"));
        QCOMPARE(dump(file), expected);
        QCOMPARE(warnedLines(file), warnings);
    }

    // The count that ends a long list of warnings is pinned with the device file's.
    void warningsNameTheOriginAndStayShort()
    {
        const QByteArray hugeKey(1 << 20, 'k');
        const KeyFile huge = KeyFile::parse("[a]\n" + hugeKey + "=1\n" + hugeKey + "=2\n", "/tmp/dev.ini");
        QCOMPARE(huge.value("a", QString::fromLatin1(hugeKey)), QStringLiteral("2"));
        QCOMPARE(huge.warnings().size(), 1);
        QVERIFY(huge.warnings().first().startsWith(QLatin1String("/tmp/dev.ini:3: ")));
        QVERIFY(huge.warnings().first().size() < 200);
    }

    void toNumber_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<qint64>("number"); // -1: none

        QTest::newRow("leading zero stays decimal, blanks around") << " 010 " << qint64(10);
        QTest::newRow("hex in any case") << "0XfF" << qint64(255);
        QTest::newRow("largest") << "0x7FFFFFFFFFFFFFFF" << std::numeric_limits<qint64>::max();
        QTest::newRow("hex overflow") << "0x8000000000000000" << qint64(-1);
        QTest::newRow("plus sign") << "+5" << qint64(-1);
        QTest::newRow("non-ASCII digit") << QString::fromUtf8("\u0663") << qint64(-1);
    }

    void toNumber()
    {
        QFETCH(QString, text);
        QFETCH(qint64, number);
        QCOMPARE(KeyFile::toNumber(text).value_or(-1), number);
    }

    void load_data()
    {
        QTest::addColumn<QString>("name"); // in a fresh folder; made by the row
        QTest::addColumn<QString>("warning"); // empty: none

        QTest::newRow("missing file: nothing to say") << "missing.ini" << "";
        QTest::newRow("folder") << "." << "is a folder";
        // Opening a FIFO for reading would wait for a writer for ever.
        QTest::newRow("FIFO is not opened") << "fifo" << "is a FIFO";
        QTest::newRow("over the size limit: refused whole") << "large.ini" << "is larger than";
        // Read: its one line of NUL bytes after the entry is skipped.
        QTest::newRow("at the size limit: read") << "limit.ini" << "NUL byte";
    }

    void load()
    {
        QFETCH(QString, name);
        QFETCH(QString, warning);
        QTemporaryDir dir;
        const QString path = dir.filePath(name);
        QFile file(path);
        if (name == QLatin1String("fifo"))
            QCOMPARE(mkfifo(QFile::encodeName(path).constData(), 0600), 0);
        else if (name.endsWith(QLatin1String(".ini")) && name != QLatin1String("missing.ini"))
            QVERIFY(file.open(QIODevice::WriteOnly) && file.write("[s]\nk=v\n")
                    && file.resize(KeyFile::maxFileBytes + (name == QLatin1String("large.ini"))));

        const KeyFile loaded = KeyFile::load(path);
        QCOMPARE(loaded.warnings().size(), warning.isEmpty() ? 0 : 1);
        QVERIFY(warning.isEmpty() || loaded.warnings().first().contains(warning));
        QCOMPARE(loaded.value("s", "k"), name == QLatin1String("limit.ini") ? "v" : QString());
    }

    // ZConfig: what the fuzz target cannot tell, since it reads only what the parse found.
    void configurationReader()
    {
        QTemporaryDir dir;
        const QString path = dir.filePath(QStringLiteral("config.cfg"));
        QFile file(path);
        QVERIFY(file.open(QIODevice::WriteOnly) && file.write("[g]\nvoice = /v \nimage=/i\nempty=\n[none]\nbad\n"));
        file.close();
        QTest::ignoreMessage(QtWarningMsg, QRegularExpression(QRegularExpression::escape(path) + ":6: "));
        const ZConfig config(path, false);
        QMap<QString, QString> entries{{"stale", "from an earlier call"}};
        QVERIFY(config.getGroupEntriesKeyList("g", entries));
        QCOMPARE(entries.keys(), (QStringList{"empty", "image", "voice"})); // by key, not by line
        QVERIFY(config.getGroupEntriesKeyList("none", entries) && entries.isEmpty());
        QVERIFY(!config.getGroupEntriesKeyList("G", entries) && entries.isEmpty());
        QCOMPARE(config.readEntry("g", "empty", "d") + config.readEntry("g", "other", "d"), QStringLiteral("d"));
        // A missing file is made only when asked for.
        const ZConfig missing(dir.filePath(QStringLiteral("missing.cfg")), false);
        const ZConfig made(dir.filePath(QStringLiteral("new.cfg")), true);
        QCOMPARE(QDir(dir.path()).entryList(QDir::Files), (QStringList{"config.cfg", "new.cfg"}));
    }
};

QTEST_GUILESS_MAIN(TestKeyFile)
#include "tst_keyfile.moc"
