#include "devicefile.h"
#include "keyfile.h"

#include "Dmt.h"
#include "RES_ICON_Reader.h"
#include "SETUP_Utility.h"
#include "UTIL_MMCSD.h"

#include <QFileInfo>
#include <QImage>
#include <QRegularExpression>
#include <QTest>

#include <functional>

#include <fcntl.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

// Puts a device file with the content in place of the current one.
using Change = std::function<bool(TestDeviceFile &device, const QByteArray &content)>;
Q_DECLARE_METATYPE(Change)

// The device file as a writer that never closes it holds it, up to the end of a test.
static QFile keptOpen;

// A card information block as the driver fills it.
static QByteArray cardBlock(quint8 byte0, quint8 byte2, const QByteArray &label)
{
    QByteArray block(UTIL_MMCSD_INFO_SIZE, '\0');
    block[0] = char(byte0);
    block[2] = char(byte2);
    block.replace(76, label.size(), label);
    return block;
}

// How far the MegaSIM name read gets, walked as a client of the tree walks it.
static QByteArray readMegaSimName()
{
    struct Session
    {
        ~Session() { DmtTreeFactory::Uninitialize(); }
    } session;
    if (!DmtTreeFactory::Initialize())
        return "init failed";
    PDmtTree tree;
    const int error = DmtTreeFactory::GetSubtree(DmtPrincipal(DMString("localhost")),
                                                 DMString("./DevDetail/Ext/Conf/MegaSIM"), tree);
    if (error != SYNCML_DM_SUCCESS)
        return "subtree error " + QByteArray::number(error);
    PDmtNode node;
    if (tree->GetNode(DMString("MegaSIMName"), node) != SYNCML_DM_SUCCESS)
        return "no node";
    DmtData data;
    if (node->GetValue(data) != SYNCML_DM_SUCCESS)
        return "no value";
    DMString name;
    data.GetString(name);
    return name.c_str() ? "name " + QByteArray(name.c_str()) : QByteArray("no buffer");
}

static void expectWarningAt(int line)
{
    if (line > 0)
        QTest::ignoreMessage(QtWarningMsg, QRegularExpression(QStringLiteral("device\\.ini:%1: ").arg(line)));
}

class TestDevice : public QObject
{
    Q_OBJECT

private slots:
    void cleanup();
    void card_data();
    void card();
    void reloadsWhenTheFileChanges();
    void seesEveryWayOfChanging_data();
    void seesEveryWayOfChanging();
    void seesAFolderMadeAgainWhileTheOldIsHeld();
    void forkedChildLeavesTheParentItsChanges();
    void warnsOncePerChange();
    void flexBit_data();
    void flexBit();
    void megaSim_data();
    void megaSim();
    void emptyTextHoldsNoBuffer();
    void iconFolderOfTheDevice();
    void warningsAreBounded();

private:
    TestDeviceFile m_device;
};

void TestDevice::cleanup()
{
    keptOpen.close();
    // Back to the plain device file after a test put another one in its place.
    if (QFileInfo(m_device.path()).isSymLink())
        QVERIFY(m_device.remove());
    qputenv("KIVSIM_DEVICE", QFile::encodeName(m_device.path()));
}

void TestDevice::card_data()
{
    QTest::addColumn<QByteArray>("content");
    QTest::addColumn<int>("status");
    QTest::addColumn<int>("result");
    QTest::addColumn<QByteArray>("block"); // empty: the block is left alone
    QTest::addColumn<int>("warnedLine");

    QTest::newRow("defaults") << QByteArray() << 0 << 1 << cardBlock(0, 4, "") << 0;
    QTest::newRow("hex flags and status")
        << QByteArray("[card]\nstatus=1\nbyte0=0x03\nbyte2=0x02") << 1 << 1 << cardBlock(3, 2, "") << 0;
    QTest::newRow("11-byte label fills the field, no terminator")
        << QByteArray("[card]\nlabel=HOLIDAY2024") << 0 << 1 << cardBlock(0, 4, "HOLIDAY2024") << 0;
    QTest::newRow("longer label is cut to 11 bytes")
        << QByteArray("[card]\nlabel=ABCDEFGHIJKLMN") << 0 << 1 << cardBlock(0, 4, "ABCDEFGHIJK") << 2;
    QTest::newRow("info is the call's result") << QByteArray("[card]\ninfo=7") << 0 << 7 << cardBlock(0, 4, "") << 0;
    QTest::newRow("info 0 fails and leaves the block alone")
        << QByteArray("[card]\ninfo=0\nbyte0=1") << 0 << 0 << QByteArray() << 0;
    QTest::newRow("byte out of range keeps its default")
        << QByteArray("[card]\nbyte2=256") << 0 << 1 << cardBlock(0, 4, "") << 2;
    QTest::newRow("garbage number keeps its default")
        << QByteArray("[card]\nstatus=one\nbyte0=1") << 0 << 1 << cardBlock(1, 4, "") << 2;
    QTest::newRow("unknown key is reported") << QByteArray("[card]\nstauts=1") << 0 << 1 << cardBlock(0, 4, "") << 2;
    QTest::newRow("unknown section is reported") << QByteArray("[crad]\nstatus=1") << 0 << 1 << cardBlock(0, 4, "") << 1;
    QTest::newRow("the launcher's section is no concern")
        << QByteArray("[sandbox]\ncard_size = 64M\n[card]\nstatus=1") << 1 << 1 << cardBlock(0, 4, "") << 0;
}

void TestDevice::card()
{
    QFETCH(QByteArray, content);
    QFETCH(int, status);
    QFETCH(int, result);
    QFETCH(QByteArray, block);
    QFETCH(int, warnedLine);

    QVERIFY(m_device.write(content));
    expectWarningAt(warnedLine);
    QTest::failOnWarning(QRegularExpression(QStringLiteral(".")));
    QCOMPARE(UTIL_GetMMCSDStatus(), status);
    QByteArray filled(UTIL_MMCSD_INFO_SIZE, '\xAA');
    QCOMPARE(UTIL_GetMMCSDInfo(reinterpret_cast<unsigned char *>(filled.data()), "/dev/mmca"), result);
    QCOMPARE(filled, block.isEmpty() ? QByteArray(UTIL_MMCSD_INFO_SIZE, '\xAA') : block);
}

void TestDevice::reloadsWhenTheFileChanges()
{
    QVERIFY(m_device.write("[card]\nstatus=1"));
    QCOMPARE(UTIL_GetMMCSDStatus(), 1);
    QVERIFY(m_device.write("[card]\nstatus=2")); // same size, later time
    QCOMPARE(UTIL_GetMMCSDStatus(), 2);
    QVERIFY(m_device.remove());
    QCOMPARE(UTIL_GetMMCSDStatus(), 0);
    QVERIFY(m_device.write("[card]\nstatus=3"));
    QCOMPARE(UTIL_GetMMCSDStatus(), 3);
}

void TestDevice::seesEveryWayOfChanging_data()
{
    QTest::addColumn<Change>("change");

    QTest::newRow("rewritten in place") << Change([](TestDeviceFile &device, const QByteArray &content) {
        return device.write(content);
    });
    QTest::newRow("replaced by rename") << Change([](TestDeviceFile &device, const QByteArray &content) {
        return device.replace(content);
    });
    QTest::newRow("written through a file kept open")
        << Change([](TestDeviceFile &device, const QByteArray &content) {
               static int writes = 0;
               keptOpen.setFileName(device.path());
               if (!keptOpen.isOpen() && !keptOpen.open(QIODevice::WriteOnly))
                   return false;
               // A new size each time: the clock may not tick between two writes.
               const QByteArray padded = content + QByteArray(++writes, '\n');
               return keptOpen.resize(0) && keptOpen.seek(0) && keptOpen.write(padded) == padded.size()
                   && keptOpen.flush();
           });
    QTest::newRow("removed, then written") << Change([](TestDeviceFile &device, const QByteArray &content) {
        return device.remove() && UTIL_GetMMCSDStatus() == 0 && device.write(content);
    });
    QTest::newRow("folder removed, then made again")
        << Change([](TestDeviceFile &device, const QByteArray &content) {
               const QString folder = device.dir().path();
               return device.remove() && QDir(folder).removeRecursively() && UTIL_GetMMCSDStatus() == 0
                   && QDir().mkdir(folder) && device.write(content);
           });
    // The link's folder shows nothing of what happens to its target.
    QTest::newRow("target of a symbolic link rewritten")
        << Change([](TestDeviceFile &device, const QByteArray &content) {
               const QString target = device.dir().filePath(QStringLiteral("target.ini"));
               if (!QFileInfo(device.path()).isSymLink()
                   && !(device.remove() && QFile::link(QStringLiteral("target.ini"), device.path())))
                   return false;
               return device.writeTo(target, content);
           });
    QTest::newRow("another file named") << Change([](TestDeviceFile &device, const QByteArray &content) {
        static int files = 0;
        const QString other = device.dir().filePath(QStringLiteral("other%1.ini").arg(++files));
        qputenv("KIVSIM_DEVICE", QFile::encodeName(other));
        return device.writeTo(other, content);
    });
}

void TestDevice::seesEveryWayOfChanging()
{
    QFETCH(Change, change);

    QVERIFY(m_device.write("[card]\nstatus=1"));
    QCOMPARE(UTIL_GetMMCSDStatus(), 1);
    QVERIFY(change(m_device, "[card]\nstatus=2"));
    QCOMPARE(UTIL_GetMMCSDStatus(), 2);
    QVERIFY(change(m_device, "[card]\nstatus=3"));
    QCOMPARE(UTIL_GetMMCSDStatus(), 3);
}

void TestDevice::seesAFolderMadeAgainWhileTheOldIsHeld()
{
    // A removed folder still held open (a shell's working folder, say) tells
    // its watch nothing until let go.
    const QString folder = m_device.dir().path();
    QVERIFY(m_device.write("[card]\nstatus=1"));
    QCOMPARE(UTIL_GetMMCSDStatus(), 1);
    const int held = ::open(QFile::encodeName(folder).constData(), O_RDONLY | O_DIRECTORY);
    QVERIFY(held >= 0);
    QVERIFY(m_device.remove());
    QCOMPARE(UTIL_GetMMCSDStatus(), 0);
    QVERIFY(QDir(folder).removeRecursively());
    QCOMPARE(UTIL_GetMMCSDStatus(), 0);
    QVERIFY(QDir().mkdir(folder) && m_device.write("[card]\nstatus=2"));
    const int status = UTIL_GetMMCSDStatus();
    ::close(held);
    QCOMPARE(status, 2);
}

void TestDevice::forkedChildLeavesTheParentItsChanges()
{
    QVERIFY(m_device.write("[card]\nstatus=1"));
    QCOMPARE(UTIL_GetMMCSDStatus(), 1);
    const pid_t child = fork();
    QVERIFY(child >= 0);
    if (child == 0) {
        // A new file, so that the parent's later writes cannot repeat its stamp.
        const bool seen = m_device.replace("[card]\nstatus=2") && UTIL_GetMMCSDStatus() == 2;
        _exit(seen ? 0 : 1);
    }
    int status = 0;
    QCOMPARE(waitpid(child, &status, 0), child);
    QVERIFY(WIFEXITED(status) && WEXITSTATUS(status) == 0);
    QCOMPARE(UTIL_GetMMCSDStatus(), 2);
}

void TestDevice::warnsOncePerChange()
{
    QVERIFY(m_device.write("[card]\nstatus=x"));
    expectWarningAt(2);
    QCOMPARE(UTIL_GetMMCSDStatus(), 0);
    QTest::failOnWarning(QRegularExpression(QStringLiteral(".")));
    QCOMPARE(UTIL_GetMMCSDStatus(), 0);
    bool value = false;
    QVERIFY(!SETUP_Utility().getFlexBit(1, value));
}

void TestDevice::flexBit_data()
{
    QTest::addColumn<QByteArray>("content");
    QTest::addColumn<int>("bit");
    QTest::addColumn<bool>("before");
    QTest::addColumn<bool>("known");
    QTest::addColumn<bool>("after");

    const QByteArray table("[flex]\n149=1\n162=0\n0xCA=1\n205=2\n");
    QTest::newRow("listed set bit") << table << 149 << false << true << true;
    QTest::newRow("listed clear bit") << table << 162 << true << true << false;
    QTest::newRow("hex bit number") << table << 202 << false << true << true;
    QTest::newRow("unlisted leaves true") << table << 514 << true << false << true;
    QTest::newRow("unlisted leaves false") << table << 514 << false << false << false;
    QTest::newRow("bad value stays unlisted") << table << 205 << true << false << true;
}

void TestDevice::flexBit()
{
    QFETCH(QByteArray, content);
    QFETCH(int, bit);
    QFETCH(bool, before);
    QFETCH(bool, known);
    QFETCH(bool, after);

    QVERIFY(m_device.write(content));
    expectWarningAt(5); // 205=2 is not a bit value
    bool value = before;
    QCOMPARE(SETUP_Utility().getFlexBit(quint16(bit), value), known);
    QCOMPARE(value, after);
}

void TestDevice::megaSim_data()
{
    QTest::addColumn<QByteArray>("content");
    QTest::addColumn<QByteArray>("outcome");

    QTest::newRow("defaults: empty name") << QByteArray() << QByteArray("no buffer");
    QTest::newRow("name") << QByteArray("[megasim]\nname=Travel SIM") << QByteArray("name Travel SIM");
    QTest::newRow("initialize fails") << QByteArray("[megasim]\ninitialize=0\nname=X") << QByteArray("init failed");
    QTest::newRow("subtree error code") << QByteArray("[megasim]\nsubtree=0x194") << QByteArray("subtree error 404");
    QTest::newRow("node missing") << QByteArray("[megasim]\nnode=0\nname=X") << QByteArray("no node");
    QTest::newRow("value unreadable") << QByteArray("[megasim]\nvalue=0\nname=X") << QByteArray("no value");
}

void TestDevice::megaSim()
{
    QFETCH(QByteArray, content);
    QFETCH(QByteArray, outcome);

    QVERIFY(m_device.write(content));
    QCOMPARE(readMegaSimName(), outcome);
}

void TestDevice::emptyTextHoldsNoBuffer()
{
    QVERIFY(DMString().c_str() == nullptr);
    QVERIFY(DMString("").c_str() == nullptr);
    DMString text("x");
    QCOMPARE(QByteArray(text.c_str()), QByteArray("x"));
    text.assign(nullptr);
    QVERIFY(text.empty() && text.c_str() == nullptr);
}

void TestDevice::iconFolderOfTheDevice()
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
    // A FIFO would block the reader for ever.
    QCOMPARE(mkfifo(QFile::encodeName(m_device.dir().filePath("phone-icons/fifo.gif")), 0600), 0);
    QTest::ignoreMessage(QtWarningMsg, QRegularExpression(QStringLiteral("fifo.gif is a FIFO")));
    QVERIFY(reader.getIcon("fifo.gif", true).isNull());
}

// The platform's own warnings are as bounded as the parser's, and short.
void TestDevice::warningsAreBounded()
{
    QByteArray content = "[" + QByteArray(10 << 20, 's') + "]\n";
    for (int i = 0; i < 150; ++i)
        content += "[unknown" + QByteArray::number(i) + "]\n";
    QVERIFY(m_device.write(content));
    static QStringList warnings;
    warnings.clear();
    const QtMessageHandler previous = qInstallMessageHandler(
        [](QtMsgType, const QMessageLogContext &, const QString &text) { warnings << text; });
    UTIL_GetMMCSDStatus();
    qInstallMessageHandler(previous);
    QCOMPARE(warnings.size(), WarningLog::maxWarnings + 1);
    QVERIFY(warnings.last().contains(QLatin1String("51 more problems")));
    for (const QString &warning : std::as_const(warnings))
        QVERIFY2(warning.size() < 200, qPrintable(warning.left(200)));
}

QTEST_MAIN(TestDevice)
#include "tst_device.moc"
