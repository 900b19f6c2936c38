#include "devicefile.h"

#include "Dmt.h"
#include "RES_ICON_Reader.h"
#include "SETUP_Utility.h"
#include "UTIL_MMCSD.h"

#include <QImage>
#include <QRegularExpression>
#include <QTest>

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
    void card_data();
    void card();
    void reloadsWhenTheFileChanges();
    void warnsOncePerChange();
    void flexBit_data();
    void flexBit();
    void megaSim_data();
    void megaSim();
    void emptyTextHoldsNoBuffer();
    void builtInIconsAreDistinct();
    void iconFolderOfTheDevice();

private:
    TestDeviceFile m_device;
};

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

void TestDevice::builtInIconsAreDistinct()
{
    QVERIFY(m_device.write(QByteArray()));
    const char *const names[] = {
        "fm_audio_thb.gif", "fm_audio_small.gif", "fm_pic_thb.gif", "fm_pic_small.gif",
        "fm_vid_thb.gif", "fm_vid_small.gif", "fm_java_midlet_thb.gif", "fm_java_midlet_small.gif",
        "msg_unsupport_type_thb.gif", "msg_unsupport_file_type_small.gif",
        "Partial_Download_B.gif", "Partial_Download_S.gif", "Complete_Download_B.gif",
        "Complete_Download_S.gif", "fm_voice_record_thb.gif", "fm_voice_record_small.gif",
        "fm_text_thb.gif", "fm_text_small.gif", "fm_bkmrk_thb.gif", "fm_bkmrk_small.gif",
        "fm_save_im_conv_thb.gif", "fm_save_im_conv_small.gif", "pfile_light_thb.gif",
        "pfile_light_small.gif", "fm_vcf_thb.gif", "fm_vcf_small.gif", "fm_vcs_thb.gif",
        "fm_vcs_small.gif", "msg_receipt_request_thb.gif", "msg_receipt_request_small.gif",
        "gen_back_to_arrw_small.gif", "gen_back_to_arrw_thb.gif", "fm_invis_link_small.gif",
        "fm_invis_link_thb.gif", "fm_unknown_small.gif", "fm_unknown_thb.gif",
        "fm_folder_small.gif", "fm_folder_thb.gif", "fm_folder_carrier_small.gif",
        "fm_folder_carrier_thb.gif", "fm_ringtone_folder_small.gif", "fm_ringtone_folder_thb.gif",
        "fm_pict_folder_small.gif", "fm_pict_folder_thb.gif", "fm_audio_folder_small.gif",
        "fm_audio_folder_thb.gif", "fm_vid_folder_small.gif", "fm_vid_folder_thb.gif",
        "bc_small.gif", "bc_std.png", "fm_voice_record_folder_small.gif",
        "fm_voice_record_folder_thb.gif", "fm_my_doc_folder_small.gif", "fm_my_doc_folder_thb.gif",
        "fm_phone_mem_small.gif", "fm_memory_card_small.gif", "fm_memory_card_thb.gif",
        "ctact_sim_small.gif", "ctact_sim_thb.gif", "info_pop.gif", "error_pop.gif",
    };
    RES_ICON_Reader reader;
    QList<QImage> seen;
    for (const char *name : names) {
        const QImage image = reader.getIcon(name, true).toImage();
        QVERIFY2(!image.isNull(), name);
        QVERIFY2(!seen.contains(image), name);
        seen.append(image);
    }
    QVERIFY(reader.getIcon("FM_PIC_THB.GIF", true).isNull()); // names are exact
    QVERIFY(reader.getIcon("no_such_icon.gif", true).isNull());
    QVERIFY(reader.getIcon("", true).isNull());
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
}

QTEST_MAIN(TestDevice)
#include "tst_device.moc"
