#include "extension.h"

#include <algorithm>

namespace Tambro {

namespace {

bool isAscii(QStringView text)
{
    return std::all_of(text.begin(), text.end(), [](QChar c) { return c.unicode() < 0x80; });
}

bool equalsAsciiLowered(QStringView extension, QLatin1String listed)
{
    if (extension.size() != listed.size())
        return false;
    for (qsizetype i = 0; i < extension.size(); ++i) {
        char16_t c = extension[i].unicode();
        if (c >= u'A' && c <= u'Z')
            c += u'a' - u'A';
        if (c != char16_t(listed[i].unicode()))
            return false;
    }
    return true;
}

} // namespace

QStringView lastDotExtension(const QString &name)
{
    return QStringView(name).mid(name.lastIndexOf(u'.') + 1);
}

// By hand rather than through QFileInfo, which costs a file-info object per
// question; the icon of every listed file asks.
QStringView fileNameExtension(const QString &name)
{
    const QStringView fileName = QStringView(name).mid(name.lastIndexOf(u'/') + 1);
    const qsizetype dot = fileName.lastIndexOf(u'.');
    return dot < 0 ? QStringView() : fileName.mid(dot + 1);
}

bool isListedExtension(QStringView extension, std::initializer_list<QLatin1String> list)
{
    if (extension.isEmpty())
        return false;
    // ASCII is lowered in place; anything else takes Qt's full lower-casing,
    // which may change the text's length.
    if (isAscii(extension)) {
        return std::any_of(list.begin(), list.end(), [&](QLatin1String listed) {
            return equalsAsciiLowered(extension, listed);
        });
    }
    const QString lowered = extension.toString().toLower();
    return std::any_of(list.begin(), list.end(),
                       [&](QLatin1String listed) { return lowered == listed; });
}

bool startsWithWord(QStringView text, QLatin1String word)
{
    if (text.size() < word.size())
        return false;
    // Qt folds every character through its Unicode tables, which costs more
    // than the registry's answer; for ASCII, lowering is the same folding.
    const QStringView start = text.left(word.size());
    if (isAscii(start))
        return equalsAsciiLowered(start, word);
    return start.startsWith(word, Qt::CaseInsensitive);
}

} // namespace Tambro
