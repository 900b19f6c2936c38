// The file name validator, keystroke by keystroke, and the recipient checks.
// That validate changes nothing is pinned by the validator's fuzz target.
#include <TAMBRO_Char_Validator.h>
#include <TAMBRO_Global.h>

#include <QTest>

#include <algorithm>

namespace {

const QString Forbidden = QStringLiteral(u";*?@#&=<>/|:\r\n\"\u20ac\u00a3\u00a4\u00a7\\\u00bf");

QValidator::State validate(QString text, int position)
{
    return TAMBRO_Char_Validator().validate(text, position);
}

} // namespace

class TestValidation : public QObject
{
    Q_OBJECT

private Q_SLOTS:
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

QTEST_GUILESS_MAIN(TestValidation)
#include "tst_validation.moc"
