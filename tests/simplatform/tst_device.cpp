// The simulated phone's configuration files, through the key-file parser that
// every ini file goes through and the ZConfig reader built on it; the device
// file: what the platform's calls answer from it, the MIME registry and how
// often it asks a system database; and the journal's lines, whose shapes tests
// and people read.
#include "devicefile.h"
#include "keyfile.h"
#include "mime_lookup.h"
#include "mimeanswers/system_mime_database.h"

#include "AM_MimeRegistry.h"
#include "Dmt.h"
#include "RES_ICON_Reader.h"
#include "SETUP_Utility.h"
#include "UTIL_MMCSD.h"
#include "UTIL_MimeType.h"
#include "ZConfig.h"
#include "ZMessageDlg.h"

#include <QImage>
#include <QRegularExpression>
#include <QTemporaryDir>
#include <QTest>

#include <functional>
#include <sys/stat.h>

using Call = std::function<void()>;
Q_DECLARE_METATYPE(Call)

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

QByteArray cardBlock(quint8 byte0, quint8 byte2, const QByteArray &label)
{
    QByteArray block(UTIL_MMCSD_INFO_SIZE, '\0');
    block[0] = char(byte0);
    block[2] = char(byte2);
    return block.replace(76, label.size(), label);
}

// Knows png only, and counts the questions.
class CountingDatabase : public MimeAnswers::SystemMimeDatabase
{
public:
    QString typeOf(const QString &extension) const override
    {
        ++asked[extension];
        return extension.compare(QLatin1String("png"), Qt::CaseInsensitive) ? QString() : QStringLiteral("image/png");
    }
    mutable QHash<QString, int> asked;
};

KeyFile::Section section(const QList<KeyFile::Entry> &entries)
{
    return {QStringLiteral("mime"), 1, entries};
}

} // namespace

class TestDevice : public QObject
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
    void card_data()
    {
        QTest::addColumn<QByteArray>("content");
        QTest::addColumn<int>("result");
        QTest::addColumn<QByteArray>("block"); // empty: the block is left alone
        QTest::addColumn<QString>("warned"); // the warning, as a pattern

        QTest::newRow("11-byte label fills the field, no terminator")
            << QByteArray("[card]\nlabel=HOLIDAY2024\nbyte0=0x03") << 1 << cardBlock(3, 4, "HOLIDAY2024") << QString();
        QTest::newRow("longer label is cut to 11 bytes")
            << QByteArray("[card]\nlabel=ABCDEFGHIJKLMN") << 1 << cardBlock(0, 4, "ABCDEFGHIJK") << QStringLiteral("device\\.ini:2: ");
        QTest::newRow("info is the call's result; 0 fails and leaves the block alone")
            << QByteArray("[card]\ninfo=0\nbyte0=1") << 0 << QByteArray() << QString();
        QTest::newRow("byte out of range keeps its default")
            << QByteArray("[card]\nbyte2=256") << 1 << cardBlock(0, 4, "") << QStringLiteral("device\\.ini:2: ");
        // A key that would retitle the terminal is shown, not obeyed.
        QTest::newRow("terminal controls in a key are escaped")
            << QByteArray("[card]\nbyte0=1\n\x1b]0;owned\x07\\x1b=1") << 1 << cardBlock(1, 4, "")
            << QStringLiteral("device\\.ini:3: \\[card\\] \\\\x1b\\]0;owned\\\\x07\\\\\\\\x1b: ");
    }

    void card()
    {
        QFETCH(QByteArray, content);
        QFETCH(int, result);
        QFETCH(QByteArray, block);
        QFETCH(QString, warned);
        QVERIFY(m_device.write(content));
        if (!warned.isEmpty())
            QTest::ignoreMessage(QtWarningMsg, QRegularExpression(warned));
        QTest::failOnWarning(QRegularExpression(QStringLiteral(".")));
        QByteArray filled(UTIL_MMCSD_INFO_SIZE, '\xAA');
        QCOMPARE(UTIL_GetMMCSDInfo(reinterpret_cast<unsigned char *>(filled.data()), "/dev/mmca"), result);
        QCOMPARE(filled, block.isEmpty() ? QByteArray(UTIL_MMCSD_INFO_SIZE, '\xAA') : block);
        TestDeviceFile::changed();
        UTIL_GetMMCSDStatus(); // an unchanged file is not read, nor reported, again
    }

    // A listed bit answers; an unlisted one, or one of a bad value, leaves the caller's value alone.
    void flexBits()
    {
        QVERIFY(m_device.write("[flex]\n0xA2=0\n205=2\n"));
        QTest::ignoreMessage(QtWarningMsg, QRegularExpression(QStringLiteral("device\\.ini:3: ")));
        bool value = true;
        QVERIFY(SETUP_Utility().getFlexBit(162, value) && !value);
        value = true;
        QVERIFY(!SETUP_Utility().getFlexBit(205, value) && value);
        QVERIFY(!SETUP_Utility().getFlexBit(514, value) && value);
    }

    void iconFolderOfTheDevice()
    {
        QVERIFY(m_device.dir().mkdir(QStringLiteral("phone-icons")));
        QImage red(3, 2, QImage::Format_ARGB32);
        red.fill(Qt::red);
        QVERIFY(red.save(m_device.dir().filePath(QStringLiteral("phone-icons/fm_pic_thb.gif")), "PNG"));
        QVERIFY(m_device.write("[icons]\ndir = phone-icons\n"));

        RES_ICON_Reader reader;
        QCOMPARE(reader.getIcon("fm_pic_thb.gif", false).size(), QSize(3, 2));
        QVERIFY(reader.getIcon("fm_pic_small.gif", true).isNull()); // no fallback to the built-in set
        QVERIFY(reader.getIcon("../device.ini", true).isNull());
    }

    // The platform's own warnings are as bounded as the parser's, and short.
    void warningsAreBounded()
    {
        QByteArray content = "[" + QByteArray(10 << 20, 's') + "]\n";
        for (int i = 0; i < 150; ++i)
            content += "[unknown" + QByteArray::number(i) + "]\n";
        QVERIFY(m_device.write(content));
        static QStringList warnings;
        const QtMessageHandler previous = qInstallMessageHandler(
            [](QtMsgType, const QMessageLogContext &, const QString &text) { warnings << text; });
        UTIL_GetMMCSDStatus();
        qInstallMessageHandler(previous);
        QCOMPARE(warnings.size(), WarningLog::maxWarnings + 1);
        QVERIFY(warnings.last().contains(QLatin1String("51 more problems")));
        for (const QString &warning : std::as_const(warnings))
            QVERIFY2(warning.size() < 200, qPrintable(warning.left(200)));
    }

    // Asked as written, once, and never about what the device lists; whole
    // names are not remembered, and the answers start over past a limit.
    void databaseAskedOncePerExtensionUpToALimit()
    {
        CountingDatabase database;
        const KivSim::MimeLookup lookup(section({{"mp3", "audio/mpeg"}}), section({{"image/*", "viewer"}}), &database);
        for (int round = 0; round < 2; ++round) {
            QCOMPARE(lookup.handlerForExtension("png"), "viewer");
            QCOMPARE(lookup.typeOf("PNG") + lookup.typeOf("mp3") + lookup.typeOf("zzz"), "image/pngaudio/mpeg");
        }
        QCOMPARE(database.asked, (QHash<QString, int>{{"png", 1}, {"PNG", 1}, {"zzz", 1}}));
        for (qsizetype n = 0; n < MimeAnswers::AnswerTable::maxAnswers; ++n)
            lookup.typeOf(QStringLiteral("Photo %1").arg(n));
        lookup.typeOf("png");
        QCOMPARE(database.asked.value("png"), 1);
        for (qsizetype n = 0; n < MimeAnswers::AnswerTable::maxAnswers; ++n)
            lookup.typeOf(QString::number(n));
        lookup.typeOf("png");
        QCOMPARE(database.asked.value("png"), 2);
    }

    void answers_data()
    {
        QTest::addColumn<int>("criterion"); // -1: the type; else the handler by that criterion
        QTest::addColumn<QString>("key");
        QTest::addColumn<QString>("expected"); // null: none

        QTest::newRow("type: exact key") << -1 << "Ärger" << "x/exact";
        QTest::newRow("type: first key ignoring case, folded beyond ASCII") << -1 << "ärger" << "x/first";
        QTest::newRow("type: the system's for unlisted") << -1 << "png" << "image/png";
        QTest::newRow("type: listed ignoring case beats the system") << -1 << "jpg" << "x/listed";
        QTest::newRow("type: nobody knows") << -1 << "qqzzy" << QString();
        QTest::newRow("by extension, case ignored") << 0 << "TXT" << "editor";
        QTest::newRow("by the extension's type") << 0 << "mp3" << "mpeg-player";
        QTest::newRow("by the extension's family") << 0 << "ogg" << "player";
        QTest::newRow("type without handler nor family") << 0 << "jpg" << QString();
        QTest::newRow("by type") << 1 << "audio/mpeg" << "mpeg-player";
        QTest::newRow("by family") << 1 << "audio/x-wav" << "player";
        QTest::newRow("unknown criterion") << 2 << "txt" << QString();
    }

    void answers()
    {
        QFETCH(int, criterion);
        QFETCH(QString, key);
        QFETCH(QString, expected);
        QVERIFY(m_device.write("[registry]\nsystem = 1\n[mime]\nÄrgeR = x/first\nÄrger = x/exact\närgeR = x/later\n"
                               "JPG = x/listed\nmp3 = audio/mpeg\nogg = audio/ogg\n"
                               "[handlers]\ntxt = editor\naudio/mpeg = mpeg-player\naudio/* = player\n"));
        const QString answer = criterion < 0
            ? m_registry.getAssociatedMimeType(key)
            : m_registry.getDefaultHandlerId(MIME_LOOKUP_CRITERIA(criterion), key, QString());
        QCOMPARE(answer, expected);
        QCOMPARE(answer.isNull(), expected.isNull());
    }

    // A quoted type keeps its blanks; a picture goes by the last dot.
    void typesFromTheDevice()
    {
        QVERIFY(m_device.write("[mime]\nodd = \"  audio/x-odd \"\nbare =   audio/bare  \njpg = image/jpeg\n"));
        QCOMPARE(m_registry.getAssociatedMimeType("odd") + m_registry.getAssociatedMimeType("bare"),
                 QStringLiteral("  audio/x-odd audio/bare"));
        QVERIFY(UTIL_MimeType::isPicture("/a/photo.JPG") && UTIL_MimeType::isPicture("/a/.jpg"));
        QVERIFY(!UTIL_MimeType::isPicture("/a.jpg/readme"));
    }

    // Each answer is remembered until the device file changes, rewritten in
    // place with as many bytes or replaced by a new file.
    void answersFollowTheDevice()
    {
        for (int round = 0; round < 4; ++round) {
            const QByteArray n = QByteArray::number(round);
            const QByteArray content = "[mime]\next = type/n" + n + "\n[handlers]\ntype/n" + n + " = app" + n + "\n";
            QVERIFY(round % 2 ? m_device.replace(content) : m_device.write(content));
            QCOMPARE(m_registry.getAssociatedMimeType("ext"), "type/n" + n);
            QCOMPARE(m_registry.getDefaultHandlerId(MIME_LOOKUP_BY_EXTENSION, "ext", QString()), "app" + n);
        }
    }

    void lines_data()
    {
        QTest::addColumn<Call>("call");
        QTest::addColumn<QByteArray>("expected"); // empty: nothing is journaled

        QTest::newRow("quotes, controls and non-ASCII escaped as JSON") << Call([] {
            ZMessageDlg(QString::fromUtf8("Say \"h\u00E9\" \\ \u2713"), "a\nb\tc\x01", 2, 0).exec();
        }) << QByteArray("{\"call\":\"ZPopup::exec\",\"title\":\"Say \\\"h\xC3\xA9\\\" \\\\ \xE2\x9C\x93\","
                         "\"text\":\"a\\nb\\tc\\u0001\",\"type\":2}");
        QTest::newRow("not journaled: extensions, picture test, configuration, tree nodes") << Call([] {
            AM_MimeRegistry().getAssociatedExtensions("audio/mpeg");
            UTIL_MimeType::isPicture("/a/b.jpg");
            ZConfig("/nonexistent/kiv_tambro.cfg", false).readNumEntry("sortType", "tambro", 0);
            PDmtTree tree;
            DmtTreeFactory::GetSubtree(DmtPrincipal(DMString("localhost")), DMString("./a"), tree);
            PDmtNode node;
            tree->GetNode(DMString("MegaSIMName"), node);
            DmtData data;
            node->GetValue(data);
        }) << QByteArray(R"({"call":"DmtTreeFactory::GetSubtree","path":"./a"})");
    }

    void lines()
    {
        QFETCH(Call, call);
        QFETCH(QByteArray, expected);
        QFile journal(m_device.dir().filePath(QStringLiteral("journal.jsonl")));
        journal.remove();
        call();
        QVERIFY(journal.open(QIODevice::ReadOnly));
        QCOMPARE(journal.readAll(), expected + '\n');
    }

private:
    TestDeviceFile m_device;
    AM_MimeRegistry m_registry;
};

QTEST_MAIN(TestDevice)
#include "tst_device.moc"
