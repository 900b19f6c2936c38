// Whether a recipient could be a phone number or an e-mail address: single
// characters are looked at, no grammar.
#include "TAMBRO_Global.h"

namespace {

// Compared as characters: digits of other scripts are no digits here.
bool isAsciiDigit(QChar c)
{
    return c >= u'0' && c <= u'9';
}

bool isPhoneNumberCharacter(const QString &text, qsizetype index)
{
    const QChar c = text.at(index);
    return isAsciiDigit(c) || (c == u'+' && index == 0) || c == u'-'
        || (c == u'.' && index != text.size() - 1);
}

} // namespace

bool TAMBRO_Global::isMobile(QString text)
{
    for (qsizetype i = 0; i < text.size(); ++i) {
        if (!isPhoneNumberCharacter(text, i))
            return false;
    }
    return true; // the empty text too
}

bool TAMBRO_Global::isEmail(QString text)
{
    return text.count(u'@') == 1 && !text.startsWith(u'@') && !text.endsWith(u'@');
}
