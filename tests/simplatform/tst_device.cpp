// The simulated phone's device file: what the platform's calls answer from it.
#include "devicefile.h"
#include "keyfile.h"

#include "RES_ICON_Reader.h"
#include "SETUP_Utility.h"
#include "UTIL_MMCSD.h"

#include <QImage>
#include <QRegularExpression>
#include <QTest>

namespace {

QByteArray cardBlock(quint8 byte0, quint8 byte2, const QByteArray &label)
{
    QByteArray block(UTIL_MMCSD_INFO_SIZE, '\0');
    block[0] = char(byte0);
    block[2] = char(byte2);
    return block.replace(76, label.size(), label);
}

} // namespace

class TestDevice : public QObject
{
    Q_OBJECT

private Q_SLOTS:
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

private:
    TestDeviceFile m_device;
};

QTEST_MAIN(TestDevice)
#include "tst_device.moc"
