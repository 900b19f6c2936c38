#include "RES_ICON_Reader.h"

#include <QDir>
#include <QTest>

#include "devicefile.h"

namespace {

constexpr QSize listSize(16, 16);

struct IconName
{
    const char *name;
    bool big;
};

// Every name the file manager asks the icon store for: the file type icons, the
// preloaded ones, the partitions' icons and the notices' title icons.
constexpr IconName iconNames[] = {
    {"fm_audio_thb.gif", true}, {"fm_audio_small.gif", false},
    {"fm_pic_thb.gif", true}, {"fm_pic_small.gif", false},
    {"fm_vid_thb.gif", true}, {"fm_vid_small.gif", false},
    {"fm_java_midlet_thb.gif", true}, {"fm_java_midlet_small.gif", false},
    {"msg_unsupport_type_thb.gif", true}, {"msg_unsupport_file_type_small.gif", false},
    {"Partial_Download_B.gif", true}, {"Partial_Download_S.gif", false},
    {"Complete_Download_B.gif", true}, {"Complete_Download_S.gif", false},
    {"fm_voice_record_thb.gif", true}, {"fm_voice_record_small.gif", false},
    {"fm_text_thb.gif", true}, {"fm_text_small.gif", false},
    {"fm_bkmrk_thb.gif", true}, {"fm_bkmrk_small.gif", false},
    {"fm_save_im_conv_thb.gif", true}, {"fm_save_im_conv_small.gif", false},
    {"pfile_light_thb.gif", true}, {"pfile_light_small.gif", false},
    {"fm_vcf_thb.gif", true}, {"fm_vcf_small.gif", false},
    {"fm_vcs_thb.gif", true}, {"fm_vcs_small.gif", false},
    {"msg_receipt_request_thb.gif", true}, {"msg_receipt_request_small.gif", false},
    {"fm_unknown_thb.gif", true}, {"fm_unknown_small.gif", false},
    {"gen_back_to_arrw_thb.gif", true}, {"gen_back_to_arrw_small.gif", false},
    {"fm_invis_link_thb.gif", true}, {"fm_invis_link_small.gif", false},
    {"fm_folder_thb.gif", true}, {"fm_folder_small.gif", false},
    {"fm_folder_carrier_thb.gif", true}, {"fm_folder_carrier_small.gif", false},
    {"fm_ringtone_folder_thb.gif", true}, {"fm_ringtone_folder_small.gif", false},
    {"fm_pict_folder_thb.gif", true}, {"fm_pict_folder_small.gif", false},
    {"fm_audio_folder_thb.gif", true}, {"fm_audio_folder_small.gif", false},
    {"fm_vid_folder_thb.gif", true}, {"fm_vid_folder_small.gif", false},
    {"fm_voice_record_folder_thb.gif", true}, {"fm_voice_record_folder_small.gif", false},
    {"fm_my_doc_folder_thb.gif", true}, {"fm_my_doc_folder_small.gif", false},
    {"bc_std.png", true}, {"bc_small.gif", false},
    {"fm_memory_card_thb.gif", true}, {"fm_memory_card_small.gif", false},
    {"ctact_sim_thb.gif", true}, {"ctact_sim_small.gif", false},
    // Stands for both sizes of a fixed folder, yet is drawn at list size.
    {"fm_phone_mem_small.gif", false},
    {"info_pop.gif", true}, {"error_pop.gif", true},
};

QImage iconImage(const char *name)
{
    return RES_ICON_Reader().getIcon(name, true).toImage();
}

} // namespace

class TestIconSet : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void loadsInItsSizeClass_data();
    void loadsInItsSizeClass();
    void storeHoldsTheSetAndNothingElse();
    void iconsOfOneSizeDiffer();
    void otherNamesAreNull_data();
    void otherNamesAreNull();

private:
    TestDeviceFile m_device;
};

void TestIconSet::initTestCase()
{
    QVERIFY(m_device.write(QByteArray())); // no icon folder of its own: the built-in set
}

void TestIconSet::loadsInItsSizeClass_data()
{
    QTest::addColumn<QByteArray>("name");
    QTest::addColumn<bool>("big");
    for (const IconName &icon : iconNames)
        QTest::newRow(icon.name) << QByteArray(icon.name) << icon.big;
}

void TestIconSet::loadsInItsSizeClass()
{
    QFETCH(QByteArray, name);
    QFETCH(bool, big);

    const QImage image = iconImage(name.constData());
    QVERIFY(!image.isNull());
    QCOMPARE(image.width(), image.height());
    if (big)
        QVERIFY(image.width() >= 2 * listSize.width()); // twice a list row at least
    else
        QCOMPARE(image.size(), listSize);
    QVERIFY(image.hasAlphaChannel());
    QCOMPARE(image.pixelColor(0, 0).alpha(), 0); // drawn on a clear background
}

// Catches a stray file, such as the drawing program's source, swept into the store.
void TestIconSet::storeHoldsTheSetAndNothingElse()
{
    QStringList expected;
    for (const IconName &icon : iconNames)
        expected << QString::fromLatin1(icon.name);
    expected.sort();
    QCOMPARE(QDir(QStringLiteral(":/kivsim/icons")).entryList(QDir::AllEntries | QDir::NoDotAndDotDot, QDir::Name),
             expected);
}

void TestIconSet::iconsOfOneSizeDiffer()
{
    QList<QImage> seen;
    for (const IconName &icon : iconNames) {
        const QImage image = iconImage(icon.name);
        const qsizetype twin = seen.indexOf(image);
        if (twin >= 0)
            QFAIL(qPrintable(QStringLiteral("%1 looks just like %2")
                                 .arg(QLatin1String(icon.name), QLatin1String(iconNames[twin].name))));
        seen << image;
    }
}

void TestIconSet::otherNamesAreNull_data()
{
    QTest::addColumn<QByteArray>("name");
    QTest::newRow("unknown") << QByteArray("no_such_icon.gif");
    QTest::newRow("empty") << QByteArray("");
    QTest::newRow("other case") << QByteArray("FM_PIC_THB.GIF");
    QTest::newRow("no suffix") << QByteArray("fm_pic_thb");
    QTest::newRow("other suffix") << QByteArray("fm_pic_thb.png");
    QTest::newRow("parent folder") << QByteArray("..");
    QTest::newRow("path into the store") << QByteArray("../icons/fm_pic_thb.gif");
    QTest::newRow("absolute path") << QByteArray(":/kivsim/icons/fm_pic_thb.gif");
}

void TestIconSet::otherNamesAreNull()
{
    QFETCH(QByteArray, name);
    QVERIFY(RES_ICON_Reader().getIcon(name.constData(), true).isNull());
    QVERIFY(RES_ICON_Reader().getIcon(name.constData(), false).isNull());
}

QTEST_MAIN(TestIconSet)
#include "tst_icon_set.moc"
