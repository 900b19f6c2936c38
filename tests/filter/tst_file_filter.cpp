// Which names a filter passes: by the extensions of its patterns, as ring
// tones, or all; each row asks one filter about one name.
#include <TAMBRO_File_Filter.h>

#include "test_phone.h"

#include <QTest>

using Filter = TAMBRO_File_Filter;

class TestFileFilter : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { TestPhone::setDevice("[mime]\nmp3 = audio/mpeg\n"); }

    void match_data()
    {
        QTest::addColumn<bool>("passed");
        QTest::addColumn<bool>("expected");

        const Filter mp3(QStringLiteral("*.mp3"), false, true);
        QTest::newRow("*.mp3: lower case") << mp3.match("a.mp3") << true;
        QTest::newRow("*.mp3: the name's extension is lowered") << mp3.match("B.MP3") << true;
        QTest::newRow("*.MP3: items are not lowered") << Filter(QStringLiteral("*.MP3"), false, true).match("B.MP3") << false;
        QTest::newRow("*.*") << Filter(QStringLiteral("*.*"), true, true).match("noext") << true;
        QTest::newRow("*.** is the extension *") << Filter(QStringLiteral("*.**"), true, true).match("a.mp3") << false;
        QTest::newRow("a pattern is never split") << Filter(QStringLiteral("*.mp3 *.wav"), true, true).match("a.mp3") << false;
        QTest::newRow("a pattern without dot is the extension") << Filter(QStringLiteral("mp3"), true, true).match("a.mp3") << true;
        QTest::newRow("a dot in a folder name counts") << Filter(QStringLiteral("*.b"), true, true).match("/a.b/c") << false;
        QTest::newRow("trailing dot: empty extension") << Filter(QStringLiteral("*."), true, true).match("x.") << true;
        QTest::newRow("no dot: no extension, not an empty one") << Filter(QStringLiteral("*."), true, true).match("x") << false;

        const Filter pictures(QStringList{"*.jpg", "*.gif"}, true, true);
        QTest::newRow("list: any item") << pictures.match("x.JPG") << true;
        QTest::newRow("list: none") << pictures.match("x.png") << false;
        QTest::newRow("list: * ends it") << Filter(QStringList{"*.jpg", "*", "*.gif"}, true, true).match("x.png") << true;
        QTest::newRow("list: the walk stops at *.*")
            << (Filter(QStringList{"*.jpg", "*.*", "*.gif"}, true, true).extensions == QStringList{"jpg"}) << true;
        QTest::newRow("empty list") << Filter(QStringList(), true, true).match("noext") << true;

        const QString tone = QStringLiteral("tones/a.mp3");
        const Filter ringTones(TAMBRO_FILTER_RING_TONES, true, true);
        QTest::newRow("ring tone: preloaded audio") << ringTones.match("/usr/data_resource/" + tone) << true;
        QTest::newRow("ring tone: the user's audio") << ringTones.match("/kivlocal/download/tambro/" + tone) << false;
        Filter unchecked(TAMBRO_FILTER_PATTERN, true, true);
        unchecked.extensions << "mp3"; // an application's own item
        QTest::newRow("kind constructor: extensions unchecked") << unchecked.match("a.wav") << true;
        QTest::newRow("negative kind") << Filter(TAMBRO_FILE_FILTER_EXP_TYPE(-1), true, true).match("a.wav") << true;
        QTest::newRow("kind above ring tones") << Filter(TAMBRO_FILE_FILTER_EXP_TYPE(3), true, true).match("a.wav") << true;
    }

    void match()
    {
        QFETCH(bool, passed);
        QFETCH(bool, expected);
        QCOMPARE(passed, expected);
    }

    // Assignment shares the list; initial() on one leaves the other's.
    void initialAfterAssignment()
    {
        Filter shared(QStringLiteral("*.mp3"), true, true);
        Filter other = shared;
        other = shared;
        QVERIFY(other.initial());
        QCOMPARE(shared.extensions, QStringList{"mp3"});
        QVERIFY(!shared.match("a.wav") && other.match("a.wav"));
    }

    void patternKeptForTheApplication()
    {
        QVERIFY(Filter(QStringLiteral("song*.MP3"), false, true).pattern.match("Song 1.mp3").hasMatch());
        QVERIFY(!Filter(QStringLiteral("song*.MP3"), true, true).pattern.match("Song 1.mp3").hasMatch());
        QVERIFY(Filter(QStringLiteral("^s.*3$"), true, false).pattern.match("song.mp3").hasMatch());
    }
};

QTEST_GUILESS_MAIN(TestFileFilter)
#include "tst_file_filter.moc"
