// The host's shared MIME database, asked by extension and by type. The
// registry asks through this class so that its own rules can be tried
// against a database of known content.
#pragma once

#include <QString>
#include <QStringList>

namespace MimeAnswers {

// Whether the text could be an extension rather than a whole name without a dot.
bool isPlausibleExtension(const QString &text);

class SystemMimeDatabase
{
public:
    virtual ~SystemMimeDatabase() = default;

    // The type of a file named "file.<extension>"; null when the database
    // does not know the extension.
    virtual QString typeOf(const QString &extension) const;
    // The type's extensions, the usual one first; none for an unknown type.
    virtual QStringList extensionsOf(const QString &mimeType) const;

    static const SystemMimeDatabase &host();
};

} // namespace MimeAnswers
