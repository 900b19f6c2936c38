// The application a type opens with, by the freedesktop MIME applications
// rules: the mimeapps.list files of the XDG config and data folders, then the
// installed desktop entries that list the type.
#pragma once

#include "desktop_entry.h"
#include "keyfile.h"

#include <QHash>
#include <QList>
#include <QProcessEnvironment>
#include <QString>
#include <QStringList>

namespace KivHost {

// The XDG folders the lookup reads, each list in order of precedence.
struct XdgFolders
{
    QStringList configFolders; // $XDG_CONFIG_HOME, then each of $XDG_CONFIG_DIRS
    QStringList dataFolders;   // $XDG_DATA_HOME, then each of $XDG_DATA_DIRS
    QStringList desktops;      // the names of $XDG_CURRENT_DESKTOP, lowercased

    // The folders an environment names, with the base directory defaults
    // for a variable that is unset or empty; relative paths are ignored.
    static XdgFolders fromEnvironment(
        const QProcessEnvironment &environment = QProcessEnvironment::systemEnvironment());
};

// Reads the lists and the installed applications once, then answers for any
// number of types. A type is a MIME type or "x-scheme-handler/<scheme>",
// compared ignoring case.
class MimeApps
{
public:
    explicit MimeApps(const XdgFolders &folders);

    // The desktop file id of the type's default application; empty when no
    // installed application is known for it. In order:
    //   - the [Default Applications] of each mimeapps.list, the first
    //     installed one of its list (one that is not installed is skipped);
    //   - the [Added Associations] of each list, except the applications that
    //     a list of higher precedence names in [Removed Associations];
    //   - the installed entries whose MimeType lists the type, in the data
    //     folders' order, except the removed ones.
    // The lists are each folder's "<desktop>-mimeapps.list" for each desktop,
    // then its "mimeapps.list": the config folders', then those of each data
    // folder's "applications".
    QString defaultApplication(const QString &type) const;

    // The installed application of a desktop file id, null when there is none.
    // An id is taken from the first data folder that has it: a later one's
    // entry of the same id is hidden, also by an entry that is Hidden.
    const DesktopEntry *application(const QString &id) const;

private:
    QList<KeyFile> m_lists; // the mimeapps.list files, in order of precedence
    QHash<QString, DesktopEntry> m_applications; // id -> installed application
    QHash<QString, QStringList> m_byType;        // lowercased type -> ids, in order
};

} // namespace KivHost
