// The icon of a file, chosen by the icon table's order, and the pictures of
// icons, asked of the platform once per process.
#include <TAMBRO_Global.h>

#include "test_phone.h"

#include <QJsonObject>
#include <QTest>

namespace {

// Types and handlers that make every row of the icon table reachable.
const QByteArray Registry = "[mime]\n"
                            "mp3 = audio/mpeg\n"
                            "jpg = image/jpeg\n"
                            "mp4 = video/mp4\n"
                            "txt = text/plain\n"
                            "pdf = application/pdf\n"
                            "[handlers]\n"
                            "audio/* = com.kiv.player\n"
                            "video/* = com.kiv.player\n"
                            "pdf = com.kiv.reader\n"
                            "cmd = com.kiv.download\n"
                            "cim = com.kiv.download\n"
                            "amr = com.kiv.recorder\n"
                            "url = com.kiv.browser\n"
                            "im = com.kiv.im\n"
                            "gnx = com.kiv.lights\n"
                            "vcf = com.kiv.contacts\n"
                            "vcs = com.kiv.calendar\n";

QStringList iconsAsked()
{
    QStringList names;
    for (const QJsonObject &call : TestPhone::journal()) {
        if (call[QStringLiteral("call")] == QLatin1String("RES_ICON_Reader::getIcon"))
            names << call[QStringLiteral("name")].toString();
    }
    return names;
}

const QStringList StandardIcons = {
    "gen_back_to_arrw_small.gif", "gen_back_to_arrw_thb.gif", "fm_bkmrk_small.gif",
    "fm_bkmrk_thb.gif", "fm_invis_link_small.gif", "fm_invis_link_thb.gif",
    "fm_pic_small.gif", "fm_pic_thb.gif", "fm_audio_small.gif", "fm_audio_thb.gif",
    "fm_vid_small.gif", "fm_vid_thb.gif", "fm_voice_record_small.gif",
    "fm_voice_record_thb.gif", "msg_unsupport_file_type_small.gif",
    "msg_unsupport_type_thb.gif", "msg_receipt_request_small.gif",
    "msg_receipt_request_thb.gif", "fm_unknown_small.gif", "fm_unknown_thb.gif",
    "fm_folder_small.gif", "fm_folder_thb.gif", "fm_folder_carrier_small.gif",
    "fm_folder_carrier_thb.gif", "Complete_Download_S.gif", "Complete_Download_B.gif",
    "fm_ringtone_folder_small.gif", "fm_ringtone_folder_thb.gif",
    "fm_pict_folder_small.gif", "fm_pict_folder_thb.gif", "fm_audio_folder_small.gif",
    "fm_audio_folder_thb.gif", "fm_vid_folder_small.gif", "fm_vid_folder_thb.gif",
    "bc_small.gif", "bc_std.png", "fm_voice_record_folder_small.gif",
    "fm_voice_record_folder_thb.gif", "fm_my_doc_folder_small.gif", "fm_my_doc_folder_thb.gif",
};

} // namespace

class TestFileIcons : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase()
    {
        TestPhone::startJournal();
        TestPhone::setDevice(Registry);
    }

    // First, while nothing else has asked for icons.
    void standardIconsArePreloadedInOrder()
    {
        TAMBRO_Global::instance();
        QCOMPARE(iconsAsked(), StandardIcons);
        for (const QString &name : StandardIcons)
            QVERIFY2(!TAMBRO_Global::getIcon(name).isNull(), qPrintable(name));
        QCOMPARE(iconsAsked().size(), StandardIcons.size());
    }

    void iconIsAskedOnce_data()
    {
        QTest::addColumn<QString>("name");
        QTest::addColumn<bool>("known");

        QTest::newRow("icon that is not preloaded") << "fm_text_thb.gif" << true;
        QTest::newRow("missing icon stays null") << "no_such_icon.gif" << false;
        QTest::newRow("names are case-sensitive") << "FM_PIC_THB.gif" << false;
    }

    void iconIsAskedOnce()
    {
        QFETCH(QString, name);
        QFETCH(bool, known);
        TestPhone::clearJournal();
        QCOMPARE(TAMBRO_Global::getIcon(name).isNull(), !known);
        QCOMPARE(TAMBRO_Global::getIcon(name).isNull(), !known);
        QCOMPARE(iconsAsked(), QStringList{name});
    }

    void iconByType_data()
    {
        QTest::addColumn<QString>("name");
        QTest::addColumn<QString>("big");
        QTest::addColumn<QString>("small");

        QTest::newRow("audio") << "song.mp3" << "fm_audio_thb.gif" << "fm_audio_small.gif";
        QTest::newRow("a picture without handler is still a picture")
            << "photo.jpg" << "fm_pic_thb.gif" << "fm_pic_small.gif";
        QTest::newRow("video") << "clip.MP4" << "fm_vid_thb.gif" << "fm_vid_small.gif";
        QTest::newRow("java needs no handler") << "game.jar" << "fm_java_midlet_thb.gif" << "fm_java_midlet_small.gif";
        QTest::newRow("unhandled text stops at unsupported")
            << "notes.txt" << "msg_unsupport_type_thb.gif" << "msg_unsupport_file_type_small.gif";
        QTest::newRow("unknown type") << "data.zzz" << "msg_unsupport_type_thb.gif" << "msg_unsupport_file_type_small.gif";
        QTest::newRow("partial download") << "movie.cmd" << "Partial_Download_B.gif" << "Partial_Download_S.gif";
        QTest::newRow("complete download") << "album.CIM" << "Complete_Download_B.gif" << "Complete_Download_S.gif";
        QTest::newRow("voice record") << "memo.amr" << "fm_voice_record_thb.gif" << "fm_voice_record_small.gif";
        QTest::newRow("bookmark") << "news.url" << "fm_bkmrk_thb.gif" << "fm_bkmrk_small.gif";
        QTest::newRow("saved conversation") << "chat.im" << "fm_save_im_conv_thb.gif" << "fm_save_im_conv_small.gif";
        QTest::newRow("light pattern") << "party.gnx" << "pfile_light_thb.gif" << "pfile_light_small.gif";
        QTest::newRow("contact") << "anna.vcf" << "fm_vcf_thb.gif" << "fm_vcf_small.gif";
        QTest::newRow("calendar") << "dentist.vcs" << "fm_vcs_thb.gif" << "fm_vcs_small.gif";
        QTest::newRow("handled, of no listed kind")
            << "manual.pdf" << "msg_receipt_request_thb.gif" << "msg_receipt_request_small.gif";
        QTest::newRow("download in a folder with a dot is no download")
            << "/dl.cim/file" << "msg_unsupport_type_thb.gif" << "msg_unsupport_file_type_small.gif";
    }

    void iconByType()
    {
        QFETCH(QString, name);
        QFETCH(QString, big);
        QFETCH(QString, small);
        QCOMPARE(TAMBRO_Global::getFileIconByType(name, true), big);
        QCOMPARE(TAMBRO_Global::getFileIconByType(name, false), small);
    }

    void handlerDecidesBetweenTextAndUnsupported()
    {
        TestPhone::setDevice(Registry + "[handlers]\ntxt = com.kiv.notepad\n");
        QCOMPARE(TAMBRO_Global::getFileIconByType(QStringLiteral("notes.txt"), true),
                 QStringLiteral("fm_text_thb.gif"));
        QCOMPARE(TAMBRO_Global::getFileIconByType(QStringLiteral("notes.txt"), false),
                 QStringLiteral("fm_text_small.gif"));
    }
};

QTEST_MAIN(TestFileIcons)
#include "tst_file_icons.moc"
