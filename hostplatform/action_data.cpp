// Requests to the phone's applications, answered by this machine's: the media
// player's plays the file in a running MPRIS player, else opens it with the
// default application of its type; the image viewer's opens the picture with
// the default one. A request this machine has no application for is refused.
#include "action_values.h"

#include "applications.h"
#include "warning.h"

#include <QDBusConnection>
#include <QDBusConnectionInterface>
#include <QDBusMessage>
#include <QUrl>

namespace {

const QString MprisPrefix = QStringLiteral("org.mpris.MediaPlayer2.");

// The first player on the session bus that takes the URI.
bool playInRunningPlayer(const QString &uri)
{
    QDBusConnection bus = QDBusConnection::sessionBus();
    if (!bus.isConnected())
        return false;
    for (const QString &name : bus.interface()->registeredServiceNames().value()) {
        if (!name.startsWith(MprisPrefix))
            continue;
        QDBusMessage open = QDBusMessage::createMethodCall(name, QStringLiteral("/org/mpris/MediaPlayer2"),
                                                           QStringLiteral("org.mpris.MediaPlayer2.Player"),
                                                           QStringLiteral("OpenUri"));
        open << uri;
        if (bus.call(open, QDBus::Block, 5000).type() == QDBusMessage::ReplyMessage)
            return true;
    }
    return false;
}

} // namespace

bool AM_ActionData::invoke(bool)
{
    if (d->action == QLatin1String("MediaPlayerLauncher")) {
        const QString uri = d->value(QStringLiteral("uri"));
        return playInRunningPlayer(uri) || KivHost::openWithDefault(QUrl(uri).toLocalFile());
    }
    if (d->action == QLatin1String("ViewImagebyName"))
        return KivHost::openWithDefault(d->value(QStringLiteral("FileName")));
    platformWarning(QStringLiteral("this machine has no application for the request %1").arg(d->action));
    return false;
}
