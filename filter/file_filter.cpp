#include "TAMBRO_File_Filter.h"
#include "TAMBRO_Global.h"

#include "types/extension.h"

namespace {

QRegularExpression keptPattern(const QString &text, bool caseSensitive, bool wildcard)
{
    const QRegularExpression::PatternOptions options =
        caseSensitive ? QRegularExpression::NoPatternOption : QRegularExpression::CaseInsensitiveOption;
    if (text.isEmpty())
        return QRegularExpression(QString(), options);
    return QRegularExpression(wildcard ? QRegularExpression::wildcardToRegularExpression(text) : text, options);
}

bool passesEverything(const QString &pattern)
{
    return pattern == QLatin1String("*") || pattern == QLatin1String("*.*");
}

// Never null, so that a name without an extension matches no item.
QString listItem(const QString &pattern)
{
    const QStringView extension = Tambro::lastDotExtension(pattern);
    return extension.isEmpty() ? QStringLiteral("") : extension.toString();
}

// Null for a name without a "."; a folder's dot counts.
QString nameExtension(const QString &name)
{
    if (!name.contains(u'.'))
        return QString();
    const QString extension = Tambro::lastDotExtension(name).toString().toLower();
    return extension.isNull() ? QStringLiteral("") : extension;
}

} // namespace

TAMBRO_File_Filter::TAMBRO_File_Filter(TAMBRO_FILE_FILTER_EXP_TYPE kind, bool caseSensitive, bool wildcard)
    : pattern(keptPattern(QString(), caseSensitive, wildcard))
{
    initial();
    checkExtensions = false;
    expType = kind;
}

TAMBRO_File_Filter::TAMBRO_File_Filter(QStringList patterns, bool caseSensitive, bool wildcard)
    : pattern(keptPattern(QString(), caseSensitive, wildcard))
{
    initial();
    expType = TAMBRO_FILTER_PATTERN_LIST;
    for (const QString &each : patterns) {
        if (passesEverything(each)) {
            checkExtensions = false;
            break; // the rest is not looked at
        }
        extensions.append(listItem(each));
    }
}

TAMBRO_File_Filter::TAMBRO_File_Filter(const QString &pattern, bool caseSensitive, bool wildcard)
    : pattern(keptPattern(pattern, caseSensitive, wildcard))
{
    initial();
    extensions.append(listItem(pattern));
    if (passesEverything(pattern))
        checkExtensions = false;
}

bool TAMBRO_File_Filter::initial()
{
    extensions.clear();
    expType = TAMBRO_FILTER_PATTERN;
    checkExtensions = true;
    return true;
}

bool TAMBRO_File_Filter::extensionMatch(const QString &extension, const QString &item) const
{
    // QString counts null and empty equal; a missing extension is no empty one.
    return extension.isNull() == item.isNull() && extension == item;
}

bool TAMBRO_File_Filter::match(const QString &name) const
{
    switch (expType) {
    case TAMBRO_FILTER_PATTERN:
    case TAMBRO_FILTER_PATTERN_LIST: {
        if (!checkExtensions || extensions.isEmpty())
            return true;
        const QString extension = nameExtension(name);
        for (const QString &item : extensions) {
            if (extensionMatch(extension, item))
                return true;
        }
        return false;
    }
    case TAMBRO_FILTER_RING_TONES:
        TAMBRO_Global::instance();
        return TAMBRO_Global::canAsRingTone(name);
    }
    return true; // negative kinds and kinds above the ring tones
}
