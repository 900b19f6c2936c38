#include "system_mime_database.h"

#include <QMimeDatabase>

#include <algorithm>

namespace MimeAnswers {

// Extensions are short words; a name without a dot ("Photo 001") reaches the
// registry whole and is no extension. Asking the database about such names
// costs a glob match each, tens of microseconds, since every one is new.
bool isPlausibleExtension(const QString &text)
{
    constexpr qsizetype longestExtension = 12;
    if (text.isEmpty() || text.size() > longestExtension)
        return false;
    return std::all_of(text.cbegin(), text.cend(), [](QChar c) {
        return c.isLetterOrNumber() || c == u'_' || c == u'-' || c == u'+' || c == u'~';
    });
}

QString SystemMimeDatabase::typeOf(const QString &extension) const
{
    if (!isPlausibleExtension(extension))
        return QString();
    const QMimeType type = QMimeDatabase().mimeTypeForFile(QStringLiteral("file.") + extension,
                                                           QMimeDatabase::MatchExtension);
    // The database's fallback, application/octet-stream, means it does not know.
    return type.isValid() && !type.isDefault() ? type.name() : QString();
}

QStringList SystemMimeDatabase::extensionsOf(const QString &mimeType) const
{
    // The database knows its names as written, nearly all in lower case;
    // type names themselves ignore case.
    const QMimeDatabase database;
    QMimeType type = database.mimeTypeForName(mimeType);
    if (!type.isValid())
        type = database.mimeTypeForName(mimeType.toLower());
    return type.isValid() && !type.isDefault() ? type.suffixes() : QStringList();
}

const SystemMimeDatabase &SystemMimeDatabase::host()
{
    static const SystemMimeDatabase database;
    return database;
}

} // namespace MimeAnswers
