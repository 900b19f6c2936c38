// A freedesktop desktop entry (an application's ".desktop" file), as far as
// finding the application for a type and starting it needs.
//
// Only the first [Desktop Entry] group is read; comments, blank lines, other
// groups (such as [Desktop Action ...]) and localized keys ("Name[de]") are
// ignored. The ini syntax itself is KeyFile's, which keeps each value exactly
// as written; this reader adds what desktop entries say on top of it: the
// escapes of string values and the ';'-separated lists whose items may hold
// "\;". QSettings cuts such an item in two, which is why this reader exists.
#pragma once

#include <QString>
#include <QStringList>
#include <QStringView>

#include <optional>

namespace KivHost {

struct DesktopEntry
{
    QString id;   // the desktop file id, such as "kde-okular.desktop"
    QString path; // the file it was read from
    QString type;
    QString name;
    QString icon;
    QString exec; // unescaped as a string; the Exec quoting is still in it
    QString tryExec;
    QStringList mimeTypes;
    bool dbusActivatable = false;
    bool hidden = false;
    bool noDisplay = false;

    // An application that can be started: Type=Application, not Hidden, and
    // with an Exec line or activatable over D-Bus.
    bool isApplication() const;
};

// A desktop file's size in practice is a few kilobytes; larger files are not read.
inline constexpr qint64 maxDesktopFileBytes = 1 << 20;

// The entry of the file at path, given its desktop file id; nothing when the
// file cannot be read or has no [Desktop Entry] group.
std::optional<DesktopEntry> readDesktopEntry(const QString &path, const QString &id);

// The desktop file id of a file under an applications folder: its path
// relative to that folder with each '/' made '-' ("kde/okular.desktop" gives
// "kde-okular.desktop").
QString desktopFileId(const QString &applicationsFolder, const QString &path);

// A string value with its escapes \s \n \t \r \\ undone; any other backslash
// is kept as written.
QString unescapedValue(QStringView raw);
// A list value: items end at each ';' that is not escaped, "\;" stays in its
// item as ';', the other escapes are undone as for a string, and empty items
// are left out.
QStringList listValue(QStringView raw);

} // namespace KivHost
