// What a platform's services library reads out of the files it is given:
// bookmarks, whose URL every platform opens, and Java descriptors.
#pragma once

#include <QString>

#include <optional>

namespace KivPlatform {

// The URL of a bookmark file: "URL=" in the [InternetShortcut] section of a
// ".url" file, or the "URL:" property of a vBookmark (".vbm"). Nothing when
// the file is unreadable or names none.
std::optional<QString> bookmarkUrl(const QString &path);

struct JavaDescriptor
{
    QString archiveName; // the file name of "MIDlet-Jar-URL"; empty when it names none
    int applications = 0; // the "MIDlet-<n>" entries
};

// A Java descriptor's "name: value" lines; nothing when it is unreadable.
std::optional<JavaDescriptor> javaDescriptor(const QString &path);

} // namespace KivPlatform
