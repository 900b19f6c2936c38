// Documents open with their type's default application, URLs with their
// scheme's handler.
#include "AM_LauncherClient.h"

#include "applications.h"

#include <QUrl>

int AM_LauncherClient::openDocument(const QString &path, const QString &mimeType, bool, const QString &handlerId,
                                    const QByteArray &)
{
    if (!handlerId.isEmpty())
        return KivHost::startApplication(handlerId, {path}) ? 0 : 1;
    if (!mimeType.isEmpty())
        return KivHost::startApplication(KivHost::applications().defaultApplication(mimeType), {path}) ? 0 : 1;
    return KivHost::openWithDefault(path) ? 0 : 1;
}

int AM_LauncherClient::loadURL(const QString &url)
{
    const QString handler =
        KivHost::applications().defaultApplication(QStringLiteral("x-scheme-handler/") + QUrl(url).scheme());
    return KivHost::startApplication(handler, {url}) ? 0 : 1;
}
