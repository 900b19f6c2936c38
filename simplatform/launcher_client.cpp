#include "AM_LauncherClient.h"

#include "journal.h"

int AM_LauncherClient::openDocument(const QString &path, const QString &mimeType, bool foreground,
                                    const QString &handlerId, const QByteArray &extra)
{
    Q_UNUSED(mimeType);
    Q_UNUSED(foreground);
    Q_UNUSED(handlerId);
    Q_UNUSED(extra);
    if (KivSim::Journal::enabled())
        KivSim::Journal::Line("AM_LauncherClient::openDocument").arg("path", path).write();
    return 0;
}

int AM_LauncherClient::loadURL(const QString &url)
{
    if (KivSim::Journal::enabled())
        KivSim::Journal::Line("AM_LauncherClient::loadURL").arg("url", url).write();
    return 0;
}
