#include "keyfile.h"

#include <QTemporaryDir>
#include <QTest>

#include <sys/stat.h>

// Renders what the parser kept as "[section] key=value;..." to compare whole results.
static QString dump(const KeyFile &file)
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

// The line numbers that the warnings name, in order.
static QList<int> warnedLines(const KeyFile &file)
{
    QList<int> lines;
    for (const QString &warning : file.warnings()) {
        const QStringList parts = warning.split(u':');
        lines.append(parts.value(1).toInt());
    }
    return lines;
}

class TestKeyFile : public QObject
{
    Q_OBJECT

private slots:
    void parse_data();
    void parse();
    void warningsNameOriginAndStayShort();
    void warningsStopAtALimit();
    void toNumber_data();
    void toNumber();
    void lookupPrefersExactKey();
    void load_data();
    void load();
};

void TestKeyFile::parse_data()
{
    QTest::addColumn<QByteArray>("input");
    QTest::addColumn<QString>("expected");
    QTest::addColumn<QList<int>>("warnings");

    QTest::newRow("plain") << QByteArray("[a]\nk = v\n[b]\nx=y") << "[a] k=v|[b] x=y" << QList<int>{};
    QTest::newRow("crlf endings") << QByteArray("[a]\r\nk = v\r\n") << "[a] k=v" << QList<int>{};
    QTest::newRow("only one CR dropped, inner CR kept")
        << QByteArray("[a]\nk = v\r\r\nm=x\ry") << "[a] k=v\r;m=x\ry" << QList<int>{};
    QTest::newRow("byte order mark") << QByteArray("\xEF\xBB\xBF[a]\nk=v") << "[a] k=v" << QList<int>{};
    QTest::newRow("blanks and comments")
        << QByteArray("\n  # c\n; c\n[a]\n\n   ;k=v\n\t\nk=v\n") << "[a] k=v" << QList<int>{};
    QTest::newRow("no comment after a value")
        << QByteArray("[a]\nk = v # not a comment") << "[a] k=v # not a comment" << QList<int>{};
    QTest::newRow("value keeps trailing blanks, not leading")
        << QByteArray("[a]\n  k  =   v w  \n") << "[a] k=v w  " << QList<int>{};
    QTest::newRow("equals sign inside the value") << QByteArray("[a]\nk=b=c") << "[a] k=b=c" << QList<int>{};
    QTest::newRow("empty value") << QByteArray("[a]\nk=") << "[a] k=" << QList<int>{};
    QTest::newRow("line without equals sign")
        << QByteArray("[a]\nk=v\ngarbage\nm=w") << "[a] k=v;m=w" << QList<int>{3};
    QTest::newRow("no key before equals sign") << QByteArray("[a]\n = v") << "[a] " << QList<int>{2};
    QTest::newRow("entry before any section") << QByteArray("k=v\n[a]\nm=w") << "[a] m=w" << QList<int>{1};
    QTest::newRow("unterminated header drops its entries")
        << QByteArray("[a]\nk=v\n[b\nx=1\ny=2\n[c]\nz=3") << "[a] k=v|[c] z=3" << QList<int>{3};
    QTest::newRow("section name kept as written")
        << QByteArray("\t [ /music ] \t\nk=v\n[/voice records]\nm=w")
        << "[ /music ] k=v|[/voice records] m=w" << QList<int>{};
    QTest::newRow("name ends at the first closing bracket")
        << QByteArray("[a[b]\nk=v\n[c]d]\nm=w") << "[a[b] k=v" << QList<int>{3};
    QTest::newRow("text after the closing bracket")
        << QByteArray("[a] trailing\nk=v") << "" << QList<int>{1};
    QTest::newRow("empty section name") << QByteArray("[]\nk=v") << "" << QList<int>{1};
    QTest::newRow("blank section name") << QByteArray("[ ]\nk=v") << "[ ] k=v" << QList<int>{};
    QTest::newRow("bad header keeps its entries out of the section before")
        << QByteArray("[a]\nk=1\n[b] x\nm=2\n[c\0]\nn=3", 26) << "[a] k=1" << QList<int>{3, 5};
    QTest::newRow("duplicate key: last value, first place")
        << QByteArray("[a]\nk=1\nm=2\nk=3") << "[a] k=3;m=2" << QList<int>{4};
    QTest::newRow("repeated section continues the first")
        << QByteArray("[a]\nk=1\n[b]\nx=2\n[a]\nm=3") << "[a] k=1;m=3|[b] x=2" << QList<int>{};
    QTest::newRow("keys are case-sensitive") << QByteArray("[a]\nK=1\nk=2") << "[a] K=1;k=2" << QList<int>{};
    QTest::newRow("NUL byte drops only its line")
        << QByteArray("[a]\nk=v\0w\nm=x", 13) << "[a] m=x" << QList<int>{2};
    QTest::newRow("UTF-8") << QByteArray("[a]\nk=\xC3\xA9t\xC3\xA9") << "[a] k=\u00E9t\u00E9" << QList<int>{};
    QTest::newRow("invalid UTF-8 read as Latin-1")
        << QByteArray("[a]\nk=\xE9t\xE9") << "[a] k=\u00E9t\u00E9" << QList<int>{};
    QTest::newRow("only garbage") << QByteArray("\x01\x02\xFF\n]]\n[") << "" << QList<int>{1, 2, 3};
    QTest::newRow("empty input") << QByteArray() << "" << QList<int>{};
}

void TestKeyFile::parse()
{
    QFETCH(QByteArray, input);
    QFETCH(QString, expected);
    QFETCH(QList<int>, warnings);

    const KeyFile file = KeyFile::parse(input, QStringLiteral("dev.ini"));
    QCOMPARE(dump(file), expected);
    QCOMPARE(warnedLines(file), warnings);
}

void TestKeyFile::warningsNameOriginAndStayShort()
{
    const QByteArray hugeKey(1 << 20, 'k');
    const KeyFile file = KeyFile::parse("[a]\n" + hugeKey + "=1\n" + hugeKey + "=2\n"
                                            + QByteArray(1 << 20, 'x'),
                                        QStringLiteral("/tmp/dev.ini"));
    QCOMPARE(file.sections().value(0).entries.value(0).value, QStringLiteral("2"));
    QCOMPARE(file.warnings().size(), 2);
    for (const QString &warning : file.warnings()) {
        QVERIFY2(warning.startsWith(QLatin1String("/tmp/dev.ini:")), qPrintable(warning));
        QVERIFY2(warning.size() < 200, qPrintable(warning.left(300)));
    }
}

void TestKeyFile::warningsStopAtALimit()
{
    const int problems = KeyFile::maxWarnings + 50;
    const KeyFile file = KeyFile::parse("[a]\n" + QByteArray("x\n").repeated(problems) + "k=v",
                                        QStringLiteral("dev.ini"));
    QCOMPARE(file.value("a", "k"), QStringLiteral("v"));
    QCOMPARE(file.warnings().size(), KeyFile::maxWarnings + 1);
    QCOMPARE(file.warnings().constLast(),
             QStringLiteral("dev.ini:%1: 50 more problems from here on not listed")
                 .arg(KeyFile::maxWarnings + 2));
}

void TestKeyFile::toNumber_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<bool>("valid");
    QTest::addColumn<qint64>("number");

    QTest::newRow("decimal") << "42" << true << qint64(42);
    QTest::newRow("leading zero stays decimal") << "010" << true << qint64(10);
    QTest::newRow("negative") << "-7" << true << qint64(-7);
    QTest::newRow("blanks around") << " \t12 " << true << qint64(12);
    QTest::newRow("hex") << "0x1F" << true << qint64(31);
    QTest::newRow("hex, capital prefix and digits") << "0XfF" << true << qint64(255);
    QTest::newRow("largest") << "0x7FFFFFFFFFFFFFFF" << true << std::numeric_limits<qint64>::max();
    QTest::newRow("hex overflow") << "0xFFFFFFFFFFFFFFFF" << false << qint64(0);
    QTest::newRow("decimal overflow") << "99999999999999999999" << false << qint64(0);
    QTest::newRow("bare prefix") << "0x" << false << qint64(0);
    QTest::newRow("signed hex") << "0x-1" << false << qint64(0);
    QTest::newRow("plus sign") << "+5" << false << qint64(0);
    QTest::newRow("blank after sign") << "- 5" << false << qint64(0);
    QTest::newRow("exponent") << "1e3" << false << qint64(0);
    QTest::newRow("trailing letters") << "12abc" << false << qint64(0);
    QTest::newRow("non-ASCII digit") << QString::fromUtf8("\u0663") << false << qint64(0);
    QTest::newRow("empty") << "" << false << qint64(0);
}

void TestKeyFile::toNumber()
{
    QFETCH(QString, text);
    QFETCH(bool, valid);
    QFETCH(qint64, number);

    const std::optional<qint64> parsed = KeyFile::toNumber(text);
    QCOMPARE(parsed.has_value(), valid);
    if (valid)
        QCOMPARE(*parsed, number);
}

void TestKeyFile::lookupPrefersExactKey()
{
    const KeyFile file = KeyFile::parse("[m]\nMP3=upper\nmp3=lower\nOgg=ogg", QString());
    QCOMPARE(file.valueIgnoringCase("m", "mp3"), QStringLiteral("lower"));
    QCOMPARE(file.valueIgnoringCase("m", "Mp3"), QStringLiteral("upper")); // first in file order
    QCOMPARE(file.valueIgnoringCase("m", "OGG"), QStringLiteral("ogg"));
    QCOMPARE(file.value("m", "OGG", "none"), QStringLiteral("none"));
    QCOMPARE(file.value("M", "Ogg", "none"), QStringLiteral("none")); // sections are exact
}

void TestKeyFile::load_data()
{
    QTest::addColumn<QString>("name"); // in a fresh folder; made by the row
    QTest::addColumn<QString>("warning"); // empty: none

    QTest::newRow("missing file: nothing to say") << "missing.ini" << "";
    QTest::newRow("folder") << "." << "is a folder";
    // Opening a FIFO for reading would wait for a writer for ever.
    QTest::newRow("FIFO is not opened") << "fifo" << "is a FIFO";
    // /dev/zero never ends.
    QTest::newRow("device is not read") << "zero" << "is a device";
    QTest::newRow("over the size limit: refused whole") << "large.ini" << "is larger than";
    // Read: its one line of NUL bytes after the entry is skipped.
    QTest::newRow("at the size limit: read") << "limit.ini" << "NUL byte";
}

void TestKeyFile::load()
{
    QFETCH(QString, name);
    QFETCH(QString, warning);

    QTemporaryDir dir;
    const QString path = dir.filePath(name);
    const QByteArray section = "[s]\nk=v\n";
    QFile file(path);
    if (name == QLatin1String("fifo"))
        QCOMPARE(mkfifo(QFile::encodeName(path).constData(), 0600), 0);
    else if (name == QLatin1String("zero"))
        QVERIFY(QFile::link(QStringLiteral("/dev/zero"), path));
    else if (name.endsWith(QLatin1String(".ini")) && name != QLatin1String("missing.ini"))
        QVERIFY(file.open(QIODevice::WriteOnly) && file.write(section)
                && file.resize(KeyFile::maxFileBytes + (name == QLatin1String("large.ini"))));

    const KeyFile loaded = KeyFile::load(path);
    QCOMPARE(loaded.warnings().size(), warning.isEmpty() ? 0 : 1);
    QVERIFY(warning.isEmpty() || loaded.warnings().first().contains(warning));
    QCOMPARE(loaded.value("s", "k"), name == QLatin1String("limit.ini") ? "v" : QString());
}

QTEST_GUILESS_MAIN(TestKeyFile)
#include "tst_keyfile.moc"
