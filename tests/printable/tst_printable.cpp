#include "printable/printable_text.h"

#include <QTest>

class TestPrintable : public QObject
{
    Q_OBJECT

private slots:
    void text_data();
    void text();
    void bytes_data();
    void bytes();
    void differentBytesNeverLookAlike();
};

void TestPrintable::text_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("shown");
    const auto row = [](const char *name, const QString &text, const char *shown) {
        QTest::newRow(name) << text << QString::fromUtf8(shown);
    };
    row("OSC retitle, BEL", QStringLiteral("a\x1b]0;pwned\x07z"), "a\\x1b]0;pwned\\x07z");
    row("line breaks and tab", QStringLiteral("a\nb\rc\td"), "a\\nb\\rc\\td");
    row("DEL and C1 CSI", QStringLiteral("\x7f") + QChar(0x9b) + u'x', "\\x7f\\x9bx");
    row("right-to-left override", QStringLiteral("evil\u202etxt.exe"), "evil\\u202etxt.exe");
    row("Arabic letter mark, isolates", QStringLiteral("\u061c\u2066\u2069"), "\\u061c\\u2066\\u2069");
    row("zero width joiner, BOM", QStringLiteral("a\u200db\ufeff"), "a\\u200db\\ufeff");
    row("line separator", QStringLiteral("a\u2028b"), "a\\u2028b");
    row("tag beyond 16 bits", QString::fromUcs4(U"a\U000e0001"), "a\\U000e0001");
    row("noncharacter", QStringLiteral("\ufffe"), "\\ufffe");
    row("lone high surrogate", QString(QChar(0xd800)) + u'x', "\\ud800x");
    row("lone low surrogate at the end", QString(u'x') + QChar(0xdc00), "x\\udc00");
    row("letters of any script kept", QStringLiteral("Ünïcode 名前 😀"), "Ünïcode 名前 😀");
    row("a literal escape is not an escape", QStringLiteral("\\x1b"), "\\\\x1b");
}

void TestPrintable::text()
{
    QFETCH(QString, text);
    QFETCH(QString, shown);
    QCOMPARE(printableText(text), shown);
}

void TestPrintable::bytes_data()
{
    QTest::addColumn<QByteArray>("bytes");
    QTest::addColumn<QString>("shown");
    const auto row = [](const char *name, const QByteArray &bytes, const char *shown) {
        QTest::newRow(name) << bytes << QString::fromUtf8(shown);
    };
    row("ESC in a name", "a\x1b[2Jb", "a\\x1b[2Jb");
    row("Latin-1 byte", "bad\xff.txt", "bad\\xff.txt");
    row("valid multibyte next to a bad byte", "\xc3\xa9\xe9\xc3\xa9", "é\\xe9é");
    row("overlong slash", "\xc0\xaf", "\\xc0\\xaf");
    row("overlong three bytes", "\xe0\x80\xaf", "\\xe0\\x80\\xaf");
    row("encoded surrogate", "\xed\xa0\x80", "\\xed\\xa0\\x80");
    row("beyond U+10FFFF", "\xf4\x90\x80\x80", "\\xf4\\x90\\x80\\x80");
    row("truncated at the end", "a\xe2\x82", "a\\xe2\\x82");
    row("broken in the middle", "\xe2\x82z", "\\xe2\\x82z");
    row("four bytes", "\xf0\x9f\x98\x80", "😀");
    row("encoded override", "\xe2\x80\xae", "\\u202e");
    row("encoded C1", "\xc2\x9b", "\\x9b");
    row("NUL", QByteArray("a\0b", 3), "a\\x00b");
}

void TestPrintable::bytes()
{
    QFETCH(QByteArray, bytes);
    QFETCH(QString, shown);
    QCOMPARE(printableBytes(bytes), shown);
}

void TestPrintable::differentBytesNeverLookAlike()
{
    const QList<QByteArray> names = {"bad\xff.txt", "bad\xfe.txt", "bad\\xff.txt",
                                     "bad\xef\xbf\xbd.txt", "bad\\\xff.txt", "bad\\\\xff.txt"};
    QSet<QString> shown;
    for (const QByteArray &name : names)
        shown.insert(printableBytes(name));
    QCOMPARE(shown.size(), names.size());
}

QTEST_APPLESS_MAIN(TestPrintable)
#include "tst_printable.moc"
