#include "TAMBRO_Char_Validator.h"

#include <QRegularExpression>
#include <QWidget>

namespace {

// The characters a file name on the phone may not hold; the last six are
// written as escapes so that the expression stays plain ASCII.
const QRegularExpression &forbiddenCharacters()
{
    static const QRegularExpression expression(
        QStringLiteral("[;*?@#&=<>/|:\r\n\"\\x{20ac}\\x{00a3}\\x{00a4}\\x{00a7}\\x{005c}\\x{00bf}]+"));
    return expression;
}

} // namespace

TAMBRO_Char_Validator::TAMBRO_Char_Validator(QWidget *parent, const char *name) : QValidator(parent)
{
    setObjectName(QLatin1String(name));
}

QValidator::State TAMBRO_Char_Validator::validate(QString &text, int &position) const
{
    if (position <= 0)
        return Acceptable;
    // Past the end there is no character: nothing to refuse.
    const QChar typed = position <= text.size() ? text.at(position - 1) : QChar();
    if (position == 1 && typed == u'.')
        return Invalid; // a name may not begin with a dot
    return forbiddenCharacters().match(QStringView(&typed, 1)).hasMatch() ? Invalid : Acceptable;
}
