// Application manager: opening documents and URLs with their default applications.
#pragma once

#include "platform_export.h"

#include <QByteArray>
#include <QString>

class KIVPLATFORM_EXPORT AM_LauncherClient
{
public:
    // Both return 0 when the request was accepted.
    static int openDocument(const QString &path, const QString &mimeType, bool foreground,
                            const QString &handlerId, const QByteArray &extra);
    static int loadURL(const QString &url);
};
