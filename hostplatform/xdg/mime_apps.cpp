#include "mime_apps.h"

#include <QDir>
#include <QDirIterator>
#include <QSet>

#include <algorithm>

namespace KivHost {

namespace {

// An absolute folder from the environment, or the fallback when it is unset,
// empty or relative.
QString homeFolder(const QProcessEnvironment &environment, const QString &variable,
                   const QString &fallback)
{
    const QString value = environment.value(variable);
    return QDir::isAbsolutePath(value) ? QDir::cleanPath(value) : fallback;
}

QStringList folderList(const QProcessEnvironment &environment, const QString &variable,
                       const QString &fallback)
{
    QString value = environment.value(variable);
    if (value.isEmpty())
        value = fallback;
    QStringList folders;
    for (const QString &folder : value.split(u':', Qt::SkipEmptyParts)) {
        if (QDir::isAbsolutePath(folder))
            folders.append(QDir::cleanPath(folder));
    }
    return folders;
}

QString applicationsFolder(const QString &dataFolder)
{
    return dataFolder + QStringLiteral("/applications");
}

// The ids a group of a mimeapps.list gives for the type.
QStringList listed(const KeyFile &list, const char *group, const QString &type)
{
    const KeyFile::Section *section = list.section(QLatin1String(group));
    const KeyFile::Entry *entry = section ? section->findIgnoringCase(type) : nullptr;
    return entry ? listValue(entry->value) : QStringList();
}

} // namespace

XdgFolders XdgFolders::fromEnvironment(const QProcessEnvironment &environment)
{
    QString home = environment.value(QStringLiteral("HOME"));
    if (!QDir::isAbsolutePath(home))
        home = QDir::homePath();
    XdgFolders folders;
    folders.configFolders
        = QStringList{homeFolder(environment, QStringLiteral("XDG_CONFIG_HOME"), home + QStringLiteral("/.config"))}
        + folderList(environment, QStringLiteral("XDG_CONFIG_DIRS"), QStringLiteral("/etc/xdg"));
    folders.dataFolders
        = QStringList{homeFolder(environment, QStringLiteral("XDG_DATA_HOME"), home + QStringLiteral("/.local/share"))}
        + folderList(environment, QStringLiteral("XDG_DATA_DIRS"), QStringLiteral("/usr/local/share:/usr/share"));
    folders.configFolders.removeDuplicates();
    folders.dataFolders.removeDuplicates();
    const QString desktops = environment.value(QStringLiteral("XDG_CURRENT_DESKTOP")).toLower();
    folders.desktops = desktops.split(u':', Qt::SkipEmptyParts);
    return folders;
}

MimeApps::MimeApps(const XdgFolders &folders)
{
    QStringList listFolders = folders.configFolders;
    for (const QString &dataFolder : folders.dataFolders)
        listFolders.append(applicationsFolder(dataFolder));
    for (const QString &folder : std::as_const(listFolders)) {
        QStringList names;
        for (const QString &desktop : folders.desktops)
            names.append(desktop + QStringLiteral("-mimeapps.list"));
        names.append(QStringLiteral("mimeapps.list"));
        for (const QString &name : std::as_const(names)) {
            KeyFile list = KeyFile::load(folder + u'/' + name);
            if (!list.sections().isEmpty())
                m_lists.append(std::move(list));
        }
    }

    QSet<QString> seen;
    for (const QString &dataFolder : folders.dataFolders) {
        const QString root = applicationsFolder(dataFolder);
        // Subfolders are read, but not through links to folders, which may loop.
        QDirIterator files(root, {QStringLiteral("*.desktop")}, QDir::Files, QDirIterator::Subdirectories);
        QList<std::pair<QString, QString>> found; // id, path
        while (files.hasNext()) {
            const QString path = files.next();
            found.append({desktopFileId(root, path), path});
        }
        // The file system's order is not the same on every machine.
        std::sort(found.begin(), found.end());
        for (const auto &[id, path] : std::as_const(found)) {
            if (seen.contains(id))
                continue;
            seen.insert(id);
            const std::optional<DesktopEntry> entry = readDesktopEntry(path, id);
            if (!entry || !entry->isApplication())
                continue;
            for (const QString &type : entry->mimeTypes)
                m_byType[type.toLower()].append(id);
            m_applications.insert(id, *entry);
        }
    }
}

const DesktopEntry *MimeApps::application(const QString &id) const
{
    const auto found = m_applications.constFind(id);
    return found == m_applications.cend() ? nullptr : &*found;
}

QString MimeApps::defaultApplication(const QString &type) const
{
    for (const KeyFile &list : m_lists) {
        for (const QString &id : listed(list, "Default Applications", type)) {
            if (application(id))
                return id;
        }
    }
    QSet<QString> removed;
    for (const KeyFile &list : m_lists) {
        for (const QString &id : listed(list, "Added Associations", type)) {
            if (!removed.contains(id) && application(id))
                return id;
        }
        for (const QString &id : listed(list, "Removed Associations", type))
            removed.insert(id);
    }
    for (const QString &id : m_byType.value(type.toLower())) {
        if (!removed.contains(id))
            return id;
    }
    return QString();
}

} // namespace KivHost
