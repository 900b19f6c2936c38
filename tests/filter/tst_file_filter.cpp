// Which names a filter passes: by the extensions of its patterns, as ring
// tones, or all, each row asking one filter about one name; the file name
// validator, keystroke by keystroke (that validate changes nothing is pinned
// by the validator's fuzz target); and the recipient checks.
#include <TAMBRO_Char_Validator.h>
#include <TAMBRO_File_Filter.h>
#include <TAMBRO_Global.h>

#include "test_phone.h"

#include <QTest>

#include <algorithm>

using Filter = TAMBRO_File_Filter;

namespace {

const QString Forbidden = QStringLiteral(u";*?@#&=<>/|:\r\n\"\u20ac\u00a3\u00a4\u00a7\\\u00bf");

QValidator::State validate(QString text, int position)
{
    return TAMBRO_Char_Validator().validate(text, position);
}

} // namespace

class TestFileFilter : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { TestPhone::setDevice("[mime]\nmp3 = audio/mpeg\n"); }

    void match_data()
    {
        QTest::addColumn<QVariant>("filter"); // a pattern, a pattern list or a kind
        QTest::addColumn<QString>("name");
        QTest::addColumn<bool>("passes");

        QTest::newRow("*.mp3: lower case") << QVariant("*.mp3") << "a.mp3" << true;
        QTest::newRow("*.mp3: the name's extension is lowered") << QVariant("*.mp3") << "B.MP3" << true;
        QTest::newRow("*.MP3: items are not lowered") << QVariant("*.MP3") << "B.MP3" << false;
        QTest::newRow("*.*") << QVariant("*.*") << "noext" << true;
        QTest::newRow("*.** is the extension *") << QVariant("*.**") << "a.mp3" << false;
        QTest::newRow("a pattern is never split") << QVariant("*.mp3 *.wav") << "a.mp3" << false;
        QTest::newRow("a pattern without dot is the extension") << QVariant("mp3") << "a.mp3" << true;
        QTest::newRow("a dot in a folder name counts") << QVariant("*.b") << "/a.b/c" << false;
        QTest::newRow("trailing dot: empty extension") << QVariant("*.") << "x." << true;
        QTest::newRow("no dot: no extension, not an empty one") << QVariant("*.") << "x" << false;

        const QVariant pictures = QStringList{"*.jpg", "*.gif"};
        QTest::newRow("list: any item") << pictures << "x.JPG" << true;
        QTest::newRow("list: none") << pictures << "x.png" << false;
        QTest::newRow("list: * ends it") << QVariant(QStringList{"*.jpg", "*", "*.gif"}) << "x.png" << true;
        QTest::newRow("empty list") << QVariant(QStringList()) << "noext" << true;

        const QString tone = QStringLiteral("tones/a.mp3");
        QTest::newRow("ring tone: preloaded audio") << QVariant(2) << "/usr/data_resource/" + tone << true;
        QTest::newRow("ring tone: the user's audio") << QVariant(2) << "/kivlocal/download/tambro/" + tone << false;
        QTest::newRow("negative kind") << QVariant(-1) << "a.wav" << true;
        QTest::newRow("kind above ring tones") << QVariant(3) << "a.wav" << true;
    }

    void match()
    {
        QFETCH(QVariant, filter);
        QFETCH(QString, name);
        QFETCH(bool, passes);
        if (filter.typeId() == QMetaType::QStringList)
            QCOMPARE(Filter(filter.toStringList(), true, true).match(name), passes);
        else if (filter.typeId() == QMetaType::Int)
            QCOMPARE(Filter(TAMBRO_FILE_FILTER_EXP_TYPE(filter.toInt()), true, true).match(name), passes);
        else
            QCOMPARE(Filter(filter.toString(), true, true).match(name), passes);
    }

    // The list as an application finds it to change: the kind constructor's
    // is never checked, initial() makes an empty one that is, by extension.
    void listLeftToTheApplication()
    {
        QCOMPARE(Filter(QStringList{"*.jpg", "*.*", "*.gif"}, true, true).extensions, QStringList{"jpg"});
        Filter unchecked(TAMBRO_FILTER_PATTERN, true, true);
        unchecked.extensions << "mp3";
        QVERIFY(unchecked.match("a.wav"));
        Filter wav(QStringLiteral("*.wav"), true, true);
        QVERIFY(wav.initial() && wav.match("a.mp3"));
        Filter tones(TAMBRO_FILTER_RING_TONES, true, true);
        tones.initial();
        tones.extensions << "mp3";
        QVERIFY(tones.match("a.mp3") && !tones.match("a.wav"));
    }

    void patternKeptForTheApplication()
    {
        QVERIFY(Filter(QStringLiteral("song*.MP3"), false, true).pattern.match("Song 1.mp3").hasMatch());
        QVERIFY(!Filter(QStringLiteral("song*.MP3"), true, true).pattern.match("Song 1.mp3").hasMatch());
        QVERIFY(Filter(QStringLiteral("^s.*3$"), true, false).pattern.match("song.mp3").hasMatch());
    }
    // Every character of the BMP after two others: blanks, letters of any
    // script, the forbidden ones' neighbours, the letters of their escapes.
    void exactlyTheForbiddenCharacters()
    {
        QString refused;
        for (char16_t code = 0; code < 0xffff; ++code) {
            if (!QChar::isSurrogate(code) && validate(QStringLiteral("ab") + QChar(code), 3) == QValidator::Invalid)
                refused += QChar(code);
        }
        QString expected = Forbidden;
        std::sort(expected.begin(), expected.end());
        QCOMPARE(refused, expected);
        QCOMPARE(TAMBRO_Char_Validator().metaObject()->className(), "TAMBRO_Char_Validator");
    }

    void keystrokes_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<int>("position");
        QTest::addColumn<bool>("accepted");

        for (const QChar c : Forbidden)
            QTest::addRow("forbidden U+%04X first", c.unicode()) << QString(c) << 1 << false;
        QTest::newRow("a leading dot") << "." << 1 << false;
        QTest::newRow("a dot later") << "a." << 2 << true;
        QTest::newRow("a dot reaching position 1 by editing") << ".a" << 1 << false;
        QTest::newRow("a character before a leading dot") << "a.b" << 1 << true;
        QTest::newRow("cursor at 0 accepts anything") << "*" << 0 << true;
        QTest::newRow("cursor past the text") << "*" << 5 << true;
        QTest::newRow("text elsewhere never looked at") << "*a" << 2 << true;
        QTest::newRow("beyond the BMP") << u"😀"_qs << 2 << true;
    }

    void keystrokes()
    {
        QFETCH(QString, text);
        QFETCH(int, position);
        QFETCH(bool, accepted);
        QCOMPARE(validate(text, position), accepted ? QValidator::Acceptable : QValidator::Invalid);
    }

    void recipients_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<QString>("kind"); // m phone number, e e-mail address

        QTest::newRow("empty") << "" << "m";
        QTest::newRow("a lone plus") << "+" << "m";
        QTest::newRow("a lone dot is a last dot") << "." << "";
        QTest::newRow("plus, dashes, inner dot") << "+49-30.123" << "m";
        QTest::newRow("a second plus") << "+49+30" << "";
        QTest::newRow("a dot at the end") << "030." << "";
        QTest::newRow("digits of other scripts") << u"٠١٢"_qs << "";
        QTest::newRow("blanks around an at sign") << "a @ b" << "e";
        QTest::newRow("at sign first") << "@b" << "";
        QTest::newRow("at sign last") << "a@" << "";
    }

    void recipients()
    {
        QFETCH(QString, text);
        QFETCH(QString, kind);
        QCOMPARE(QString(TAMBRO_Global::isMobile(text) ? "m" : "") + (TAMBRO_Global::isEmail(text) ? "e" : ""), kind);
    }
};

QTEST_GUILESS_MAIN(TestFileFilter)
#include "tst_file_filter.moc"
