// Application manager: the MIME registry (extension <-> MIME type, default handlers).
#pragma once

#include "platform_export.h"

#include <QString>
#include <QStringList>

enum MIME_FILE_T { MIME_FILE_SYSTEM = 0, MIME_FILE_USER = 1 };
enum MIME_LOOKUP_CRITERIA { MIME_LOOKUP_BY_EXTENSION = 0, MIME_LOOKUP_BY_MIMETYPE = 1 };

class KIVPLATFORM_EXPORT AM_MimeRegistry
{
public:
    AM_MimeRegistry();
    virtual ~AM_MimeRegistry();

    // 0 when the registry could be opened.
    int init(MIME_FILE_T which);
    QString getAssociatedMimeType(const QString &extension);
    QStringList getAssociatedExtensions(const QString &mimeType);
    QString getDefaultHandlerId(MIME_LOOKUP_CRITERIA criterion, const QString &key,
                                const QString &second);

private:
    AM_MimeRegistry(const AM_MimeRegistry &) = delete;
    AM_MimeRegistry &operator=(const AM_MimeRegistry &) = delete;
};
