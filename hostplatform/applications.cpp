#include "applications.h"

#include "exec_line.h"
#include "portal.h"
#include "warning.h"

#include <QDBusConnection>
#include <QDBusMessage>
#include <QMimeDatabase>
#include <QProcess>
#include <QUrl>

#include <algorithm>

namespace {

// The well-known name of a D-Bus activatable application: its desktop file
// id without ".desktop"; its object path, that name with '.' as '/' and '-' as '_'.
bool openOverDBus(const QString &desktopId, const QStringList &items)
{
    const QString name = desktopId.chopped(int(qstrlen(".desktop")));
    const QString path = u'/' + QString(name).replace(u'.', u'/').replace(u'-', u'_');
    QStringList uris;
    for (const QString &item : items)
        uris << (QUrl(item).scheme().isEmpty() ? QUrl::fromLocalFile(item).toString() : item);
    QDBusMessage open = QDBusMessage::createMethodCall(name, path, QStringLiteral("org.freedesktop.Application"),
                                                       QStringLiteral("Open"));
    open << uris << QVariantMap();
    return QDBusConnection::sessionBus().call(open, QDBus::Block, 5000).type() == QDBusMessage::ReplyMessage;
}

} // namespace

namespace KivHost {

const MimeApps &applications()
{
    static const MimeApps apps(XdgFolders::fromEnvironment());
    return apps;
}

bool startApplication(const QString &desktopId, const QStringList &items)
{
    if (inSandbox())
        return std::all_of(items.cbegin(), items.cend(), openThroughPortal);
    const DesktopEntry *entry = desktopId.isEmpty() ? nullptr : applications().application(desktopId);
    if (!entry) {
        platformWarning(QStringLiteral("no application on this machine for \"%1\"").arg(items.join(QStringLiteral("\", \""))));
        return false;
    }
    if (entry->dbusActivatable && desktopId.endsWith(QLatin1String(".desktop")))
        return openOverDBus(desktopId, items);
    const QStringList arguments = commandLine(*entry, items);
    if (arguments.isEmpty() || !QProcess::startDetached(arguments.first(), arguments.mid(1))) {
        platformWarning(QStringLiteral("%1 cannot be started").arg(desktopId));
        return false;
    }
    return true;
}

bool openWithDefault(const QString &path)
{
    const QString type = QMimeDatabase().mimeTypeForFile(path).name();
    return startApplication(applications().defaultApplication(type), {path});
}

} // namespace KivHost
