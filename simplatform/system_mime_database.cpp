#include "system_mime_database.h"

#include <QMimeDatabase>

namespace KivSim {

QString SystemMimeDatabase::typeOf(const QString &extension) const
{
    if (extension.isEmpty() || extension.contains(u'/'))
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

} // namespace KivSim
