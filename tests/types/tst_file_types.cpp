// File names by the fixed lists' two extension rules and the registry's
// kinds, and the icon of a file by the icon table's order, icons asked of the
// platform once.
#include <TAMBRO_Global.h>

#include "test_phone.h"
#include "types/icon_names.h"

#include <QTest>

namespace {

// Makes every row of the icon table reachable: downloads of kind "cmd" have
// no handler, those of kind "cim" have one. A type with leading blanks,
// quoted, as a registry may hold it.
const QByteArray Registry = "[mime]\nmp3 = audio/mpeg\njpg = image/jpeg\nmp4 = video/mp4\n3gp = video/3gpp\n"
                            "odd = \"  audio/x-odd\"\nxau = x-audio/basic\nwav = AUDIO/wav\nmid = audio/midi\n"
                            "[handlers]\naudio/* = com.kiv.player\nvideo/* = com.kiv.player\n"
                            "pdf = reader\ncim = loader\ntxt = notepad\namr = recorder\nurl = browser\n"
                            "im = chat\ngnx = lights\nvcf = contacts\nvcs = calendar\n";

// A stem's small and big icon, or the two names written out.
QStringList iconPair(const QString &icons)
{
    return icons.contains(u' ') ? icons.split(u' ') : QStringList{icons + "_small.gif", icons + "_thb.gif"};
}

QStringList iconsAsked()
{
    return TestPhone::journalled("RES_ICON_Reader::getIcon", "name");
}

} // namespace

class TestFileTypes : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase()
    {
        TestPhone::startJournal();
        TestPhone::setDevice(Registry);
    }

    // First, while nothing else has asked for icons: the phone's list, each pair's small icon first.
    void standardIconsArePreloadedInOrder()
    {
        TAMBRO_Global::instance();
        QStringList standard;
        for (const char *icons : {"gen_back_to_arrw", "fm_bkmrk", "fm_invis_link", "fm_pic", "fm_audio", "fm_vid",
                 "fm_voice_record", "msg_unsupport_file_type_small.gif msg_unsupport_type_thb.gif",
                 "msg_receipt_request", "fm_unknown", "fm_folder", "fm_folder_carrier",
                 "Complete_Download_S.gif Complete_Download_B.gif", "fm_ringtone_folder", "fm_pict_folder",
                 "fm_audio_folder", "fm_vid_folder", "bc_small.gif bc_std.png", "fm_voice_record_folder",
                 "fm_my_doc_folder"})
            standard << iconPair(icons);
        QCOMPARE(iconsAsked(), standard);
        for (const QString &name : std::as_const(standard))
            QVERIFY2(!TAMBRO_Global::getIcon(name).isNull(), qPrintable(name));
        QCOMPARE(iconsAsked().size(), standard.size());
    }

    // A missing icon is remembered as well as a found one.
    void iconIsAskedOnce()
    {
        TestPhone::clearJournal();
        for (int round = 0; round < 2; ++round) {
            QVERIFY(!TAMBRO_Global::getIcon("fm_text_thb.gif").isNull());
            QVERIFY(TAMBRO_Global::getIcon("no_such_icon.gif").isNull());
        }
        QCOMPARE(iconsAsked(), (QStringList{"fm_text_thb.gif", "no_such_icon.gif"}));
    }

    void iconByType_data()
    {
        QTest::addColumn<QString>("name");
        QTest::addColumn<QString>("icons"); // small and big

        const char *unsupported = "msg_unsupport_file_type_small.gif msg_unsupport_type_thb.gif";
        QTest::newRow("a picture without handler is still a picture") << "photo.jpg" << "fm_pic";
        QTest::newRow("video") << "clip.MP4" << "fm_vid";
        QTest::newRow("java needs no handler") << "game.jar" << "fm_java_midlet";
        QTest::newRow("unknown type") << "data.zzz" << unsupported;
        QTest::newRow("unhandled download stops at unsupported") << "movie.cmd" << unsupported;
        QTest::newRow("handled download") << "album.CIM" << "Complete_Download_S.gif Complete_Download_B.gif";
        // Downloads go by the file name's own extension, not the last dot.
        QTest::newRow("download without a dot is none") << "cim" << "msg_receipt_request";
        QTest::newRow("handled, of no listed kind") << "manual.pdf" << "msg_receipt_request";
        // The kinds with an icon of their own, by their handled extensions.
        for (const auto &[name, icons] : {std::pair{"song.mp3", "fm_audio"}, {"memo.amr", "fm_voice_record"},
                 {"notes.txt", "fm_text"}, {"news.url", "fm_bkmrk"}, {"chat.im", "fm_save_im_conv"},
                 {"party.gnx", "pfile_light"}, {"anna.vcf", "fm_vcf"}, {"dentist.vcs", "fm_vcs"}})
            QTest::newRow(name) << QString(name) << QString(icons);
    }

    void iconByType()
    {
        QFETCH(QString, name);
        QFETCH(QString, icons);
        const QStringList shown{TAMBRO_Global::getFileIconByType(name, false), TAMBRO_Global::getFileIconByType(name, true)};
        QCOMPARE(shown, iconPair(icons));
    }

    // The simulated phone draws every icon the library names.
    void everyNamedIconIsInTheStore()
    {
        QStringList names{Tambro::Icons::Singles, std::end(Tambro::Icons::Singles)};
        for (const Tambro::IconPair &pair : Tambro::Icons::AllPairs)
            names << QLatin1String(pair.big) << QLatin1String(pair.small);
        for (const QString &name : std::as_const(names))
            QVERIFY2(!TAMBRO_Global::getIcon(name).isNull(), qPrintable(name));
    }
    void fixedLists_data()
    {
        QTest::addColumn<QString>("name");
        QTest::addColumn<QString>("kinds"); // t thumbnail, j JPG, g light pattern, b bookmark

        QTest::newRow("case of the extension ignored") << "Photo.JPG" << "tj";
        QTest::newRow("jpe is a thumbnail, not a JPG") << "photo.jpe" << "t";
        QTest::newRow("a name without dot is compared whole") << "png" << "t";
        QTest::newRow("a dot in a folder name counts") << "/x.dir/gif" << "";
        QTest::newRow("only the last dot counts") << "image.png.txt" << "";
        QTest::newRow("trailing dot gives no extension") << "photo." << "";
        QTest::newRow("light pattern") << "party.GNX" << "g";
        QTest::newRow("bookmark") << "saved.vbm" << "b";
        QTest::newRow("dotted capital I lowers to two characters") << QStringLiteral(u"x.G\u0130F") << "";
    }

    void fixedLists()
    {
        QFETCH(QString, name);
        QFETCH(QString, kinds);
        QCOMPARE(TAMBRO_Global::isThumbExtension(name), kinds.contains(u't'));
        QCOMPARE(TAMBRO_Global::isJpgExtension(name), kinds.contains(u'j'));
        QCOMPARE(TAMBRO_Global::isGlintExtension(name), kinds.contains(u'g'));
        QCOMPARE(TAMBRO_Global::isBookMarkExtension(name), kinds.contains(u'b'));
    }

    void registryKinds_data()
    {
        QTest::addColumn<QString>("name");
        QTest::addColumn<QString>("asked");
        QTest::addColumn<QString>("kinds"); // a audio, v video, i image

        QTest::newRow("upper case asked as it stands") << "SONG.MP3" << "MP3" << "a";
        QTest::newRow("image") << "/kivlocal/photo.jpg" << "jpg" << "i";
        QTest::newRow("video") << "clip.3gp" << "3gp" << "v";
        QTest::newRow("blanks before the type are skipped") << "x.odd" << "odd" << "a";
        QTest::newRow("the word must begin the type") << "x.xau" << "xau" << "";
        QTest::newRow("the word in any case") << "x.wav" << "wav" << "a";
        QTest::newRow("unregistered") << "x.zzz" << "zzz" << "";
        QTest::newRow("no dot asks the whole name") << "mp3" << "mp3" << "a";
        QTest::newRow("folder dot asks the rest of the path") << "/a.mp3/song" << "mp3/song" << "";
    }

    void registryKinds()
    {
        QFETCH(QString, name);
        QFETCH(QString, asked);
        QFETCH(QString, kinds);
        TestPhone::clearJournal();
        QCOMPARE(TAMBRO_Global::isAudioExtension(name), kinds.contains(u'a'));
        QCOMPARE(TAMBRO_Global::isVideoExtension(name), kinds.contains(u'v'));
        QCOMPARE(TAMBRO_Global::isImageExtension(name), kinds.contains(u'i'));
        QCOMPARE(TestPhone::journalled("AM_MimeRegistry::getAssociatedMimeType", "extension"),
                 QStringList(3, asked));
    }

    // Preloaded audio only: by the preload root's characters, not its folder.
    void ringTones()
    {
        QVERIFY(TAMBRO_Global::canAsRingTone("/usr/data_resource/ringtones/Alert.mid"));
        QVERIFY(TAMBRO_Global::canAsRingTone("/usr/data_resourceAlert.mid"));
        QVERIFY(!TAMBRO_Global::canAsRingTone("/kivlocal/download/tambro/Alert.mid"));
        QVERIFY(!TAMBRO_Global::canAsRingTone("/usr/data_resource/ringtones/readme.txt"));
    }
};

QTEST_MAIN(TestFileTypes)
#include "tst_file_types.moc"
