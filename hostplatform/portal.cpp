#include "portal.h"

#include "warning.h"

#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusUnixFileDescriptor>
#include <QFile>
#include <QFileInfo>
#include <QUrl>

#include <cerrno>
#include <fcntl.h>
#include <unistd.h>

namespace KivHost {

bool inSandbox()
{
    static const bool sandboxed = QFileInfo::exists(QStringLiteral("/.flatpak-info"));
    return sandboxed;
}

bool openThroughPortal(const QString &item)
{
    const QUrl url(item);
    const bool localFile = url.scheme().isEmpty() || url.isLocalFile();
    QDBusMessage open = QDBusMessage::createMethodCall(
        QStringLiteral("org.freedesktop.portal.Desktop"), QStringLiteral("/org/freedesktop/portal/desktop"),
        QStringLiteral("org.freedesktop.portal.OpenURI"),
        localFile ? QStringLiteral("OpenFile") : QStringLiteral("OpenURI"));
    open << QString(); // no parent window
    if (localFile) {
        // The portal checks what the descriptor names; the message carries a copy of it.
        const QString path = url.isLocalFile() ? url.toLocalFile() : item;
        const int fd = ::open(QFile::encodeName(path).constData(), O_PATH | O_CLOEXEC);
        if (fd < 0) {
            platformWarning(QStringLiteral("%1 cannot be opened: %2").arg(path, qt_error_string(errno)));
            return false;
        }
        open << QVariant::fromValue(QDBusUnixFileDescriptor(fd));
        ::close(fd);
    } else {
        open << item;
    }
    open << QVariantMap();
    const QDBusMessage reply = QDBusConnection::sessionBus().call(open, QDBus::Block, 5000);
    if (reply.type() != QDBusMessage::ReplyMessage) {
        platformWarning(QStringLiteral("the desktop portal does not open %1: %2").arg(item, reply.errorMessage()));
        return false;
    }
    return true;
}

} // namespace KivHost
