// Classifying file names: the fixed lists with their extension rules, and the
// registry's kinds, asked as written.
#include <TAMBRO_Global.h>

#include "test_phone.h"

#include <QJsonObject>
#include <QTest>

namespace {

const QByteArray Registry = "[mime]\n"
                            "mp3 = audio/mpeg\n"
                            "jpg = image/jpeg\n"
                            "3gp = video/3gpp\n"
                            "odd =  audio/x-odd\n" // a blank kept before the type
                            "xau = x-audio/basic\n"
                            "wav = AUDIO/wav\n"
                            "mid = audio/midi\n"
                            "txt = text/plain\n";

QStringList askedExtensions()
{
    QStringList extensions;
    for (const QJsonObject &call : TestPhone::journal()) {
        if (call[QStringLiteral("call")] == QLatin1String("AM_MimeRegistry::getAssociatedMimeType"))
            extensions << call[QStringLiteral("extension")].toString();
    }
    return extensions;
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

    void fixedLists_data()
    {
        QTest::addColumn<QString>("name");
        QTest::addColumn<QString>("kinds"); // t thumbnail, j JPG, g light pattern, b bookmark

        QTest::newRow("upper-case JPG") << "Photo.JPG" << "tj";
        QTest::newRow("jpe is a thumbnail, not a JPG") << "photo.jpe" << "t";
        QTest::newRow("jpeg is both") << "a.jpeg" << "tj";
        QTest::newRow("wbmp") << "logo.WBMP" << "t";
        QTest::newRow("a name without dot is compared whole") << "png" << "t";
        QTest::newRow("a path without dot too") << "/pic" << "";
        QTest::newRow("a dot in a folder name counts") << "/music.dir/readme" << "";
        QTest::newRow("folder dot reaching a listed text") << "/x.dir/gif" << "";
        QTest::newRow("only the last dot counts") << "image.png.txt" << "";
        QTest::newRow("trailing dot gives no extension") << "photo." << "";
        QTest::newRow("light pattern") << "party.GNX" << "g";
        QTest::newRow("bookmark url") << "news.Url" << "b";
        QTest::newRow("bookmark vbm") << "saved.vbm" << "b";
        QTest::newRow("empty name") << "" << "";
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

        QTest::newRow("audio") << "song.mp3" << "mp3" << "a";
        QTest::newRow("upper case asked as it stands") << "SONG.MP3" << "MP3" << "a";
        QTest::newRow("image") << "/kivlocal/photo.jpg" << "jpg" << "i";
        QTest::newRow("video") << "clip.3gp" << "3gp" << "v";
        QTest::newRow("leading blank of the type is skipped") << "x.odd" << "odd" << "a";
        QTest::newRow("the word must begin the type") << "x.xau" << "xau" << "";
        QTest::newRow("the word in any case") << "x.wav" << "wav" << "a";
        QTest::newRow("unregistered") << "x.zzz" << "zzz" << "";
        QTest::newRow("no dot asks the whole name") << "mp3" << "mp3" << "a";
        QTest::newRow("folder dot asks the rest of the path") << "/a.mp3/song" << "mp3/song" << "";
        QTest::newRow("text is no kind") << "notes.txt" << "txt" << "";
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
        QCOMPARE(askedExtensions(), QStringList(3, asked));
    }

    void ringTones_data()
    {
        QTest::addColumn<QString>("path");
        QTest::addColumn<bool>("ringTone");

        QTest::newRow("preloaded audio") << "/usr/data_resource/ringtones/Alert.mid" << true;
        QTest::newRow("the same file elsewhere") << "/kivlocal/download/tambro/Alert.mid" << false;
        QTest::newRow("preloaded non-audio") << "/usr/data_resource/ringtones/readme.txt" << false;
        QTest::newRow("just past the preload root's characters") << "/usr/data_resourceAlert.mid" << true;
    }

    void ringTones()
    {
        QFETCH(QString, path);
        QFETCH(bool, ringTone);
        QCOMPARE(TAMBRO_Global::canAsRingTone(path), ringTone);
    }
};

QTEST_GUILESS_MAIN(TestFileTypes)
#include "tst_file_types.moc"
