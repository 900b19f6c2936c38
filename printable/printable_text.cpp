#include "printable/printable_text.h"

namespace {

QString hexEscape(char32_t value, QChar kind, int digits)
{
    return QLatin1Char('\\') + kind + QString::number(uint(value), 16).rightJustified(digits, u'0');
}

QString controlEscape(char32_t c)
{
    switch (c) {
    case u'\n':
        return QStringLiteral("\\n");
    case u'\r':
        return QStringLiteral("\\r");
    case u'\t':
        return QStringLiteral("\\t");
    }
    return hexEscape(c, u'x', 2);
}

bool isControl(char32_t c)
{
    return c < 0x20 || (c >= 0x7f && c <= 0x9f);
}

// Characters that are invisible or reorder what follows them: a name could
// otherwise hide its real ending or pass for another name.
bool isHidden(char32_t c)
{
    if (QChar::isNonCharacter(c) || QChar::isSurrogate(c))
        return true;
    switch (QChar::category(c)) {
    case QChar::Other_Format:
    case QChar::Separator_Line:
    case QChar::Separator_Paragraph:
        return true;
    default:
        return false;
    }
}

void appendPrintable(QString &shown, char32_t c)
{
    if (c == u'\\')
        shown += QStringLiteral("\\\\");
    else if (isControl(c))
        shown += controlEscape(c);
    else if (isHidden(c))
        shown += c > 0xffff ? hexEscape(c, u'U', 8) : hexEscape(c, u'u', 4);
    else
        shown += QString::fromUcs4(&c, 1);
}

struct LeadByte
{
    uchar first, last;    // range of the lead byte
    uchar secondMin, secondMax; // what the next byte may be, which rules out
                                // overlong forms, surrogates and beyond U+10FFFF
    int length;
};

constexpr LeadByte leadBytes[] = {
    {0xc2, 0xdf, 0x80, 0xbf, 2}, {0xe0, 0xe0, 0xa0, 0xbf, 3}, {0xe1, 0xec, 0x80, 0xbf, 3},
    {0xed, 0xed, 0x80, 0x9f, 3}, {0xee, 0xef, 0x80, 0xbf, 3}, {0xf0, 0xf0, 0x90, 0xbf, 4},
    {0xf1, 0xf3, 0x80, 0xbf, 4}, {0xf4, 0xf4, 0x80, 0x8f, 4},
};

// The length of the well-formed UTF-8 sequence at `at`, with its code point;
// 0 when the byte there starts none.
int decodeAt(const QByteArray &bytes, qsizetype at, char32_t &c)
{
    const auto byte = [&](qsizetype i) { return uchar(bytes.at(at + i)); };
    if (byte(0) < 0x80) {
        c = byte(0);
        return 1;
    }
    for (const LeadByte &lead : leadBytes) {
        if (byte(0) < lead.first || byte(0) > lead.last)
            continue;
        if (bytes.size() - at < lead.length || byte(1) < lead.secondMin || byte(1) > lead.secondMax)
            return 0;
        c = byte(0) & (0xff >> (lead.length + 1));
        for (int i = 1; i < lead.length; ++i) {
            if ((byte(i) & 0xc0) != 0x80)
                return 0;
            c = (c << 6) | (byte(i) & 0x3f);
        }
        return lead.length;
    }
    return 0;
}

} // namespace

QString printableText(const QString &text)
{
    QString shown;
    shown.reserve(text.size());
    for (qsizetype i = 0; i < text.size(); ++i) {
        char32_t c = text.at(i).unicode();
        // A lone surrogate stays one code unit, escaped as such.
        if (QChar::isHighSurrogate(c) && i + 1 < text.size() && text.at(i + 1).isLowSurrogate())
            c = QChar::surrogateToUcs4(c, text.at(++i).unicode());
        appendPrintable(shown, c);
    }
    return shown;
}

QString printableBytes(const QByteArray &bytes)
{
    QString shown;
    shown.reserve(bytes.size());
    for (qsizetype at = 0; at < bytes.size();) {
        char32_t c = 0;
        const int length = decodeAt(bytes, at, c);
        if (length == 0) {
            shown += hexEscape(uchar(bytes.at(at)), u'x', 2);
            ++at;
        } else {
            appendPrintable(shown, c);
            at += length;
        }
    }
    return shown;
}
