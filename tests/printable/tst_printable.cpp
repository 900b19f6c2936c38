#include "printable/printable_text.h"

#include <QTest>

class TestPrintable : public QObject
{
    Q_OBJECT

private slots:
    void shown_data()
    {
        QTest::addColumn<QByteArray>("bytes"); // shown by printableBytes, or by printableText when UTF-8
        QTest::addColumn<QString>("shown");
        const auto row = [](const char *name, const QByteArray &bytes, const char *shown) {
            QTest::newRow(name) << bytes << QString::fromUtf8(shown);
        };
        row("OSC, BEL, CSI, DEL, C1", "\x1b]0;t\x07\x1b[2J\x7f\xc2\x9b", "\\x1b]0;t\\x07\\x1b[2J\\x7f\\x9b");
        row("line breaks, tab, NUL", QByteArray("a\nb\r\t\0", 6), "a\\nb\\r\\t\\x00");
        row("bidirectional and invisible", "e\u202ev\u061c\u2066\u200d\ufeff\u2028", "e\\u202ev\\u061c\\u2066\\u200d\\ufeff\\u2028");
        row("noncharacters, tag beyond 16 bits", "\ufffe\U000e0001", "\\ufffe\\U000e0001");
        row("letters of any script kept", "Ünïcode 名前 😀", "Ünïcode 名前 😀");
        row("a literal escape is no escape", "\\x1b \\xff", "\\\\x1b \\\\xff");
        row("bad bytes, each alone", "bad\xff\xfe.txt", "bad\\xff\\xfe.txt");
        row("valid multibyte beside a bad byte", "\xc3\xa9\xe9\xc3\xa9", "é\\xe9é");
        row("overlong forms", "\xc0\xaf\xe0\x80\xaf", "\\xc0\\xaf\\xe0\\x80\\xaf");
        row("encoded surrogate, beyond U+10FFFF", "\xed\xa0\x80\xf4\x90\x80\x80", "\\xed\\xa0\\x80\\xf4\\x90\\x80\\x80");
        row("cut short, at the end and inside", "\xe2\x82z\xe2\x82", "\\xe2\\x82z\\xe2\\x82");
    }

    void shown()
    {
        QFETCH(QByteArray, bytes);
        QFETCH(QString, shown);
        QCOMPARE(printableBytes(bytes), shown);
        if (QString::fromUtf8(bytes).toUtf8() == bytes)
            QCOMPARE(printableText(QString::fromUtf8(bytes)), shown);
    }

    // Lone surrogates exist only in text.
    void loneSurrogates()
    {
        const QString text = QChar(0xd800) + QStringLiteral("x") + QChar(0xdc00);
        QCOMPARE(printableText(text), QStringLiteral("\\ud800x\\udc00"));
    }
};

QTEST_APPLESS_MAIN(TestPrintable)
#include "tst_printable.moc"
