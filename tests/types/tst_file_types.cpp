// File names by the fixed lists' two extension rules, and the registry's kinds.
#include <TAMBRO_Global.h>

#include "test_phone.h"

#include <QTest>

class TestFileTypes : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase()
    {
        TestPhone::startJournal();
        // A type with leading blanks, quoted, as a registry may hold it.
        TestPhone::setDevice("[mime]\nmp3 = audio/mpeg\njpg = image/jpeg\n3gp = video/3gpp\n"
                             "odd = \"  audio/x-odd\"\nxau = x-audio/basic\nwav = AUDIO/wav\nmid = audio/midi\n");
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

QTEST_GUILESS_MAIN(TestFileTypes)
#include "tst_file_types.moc"
