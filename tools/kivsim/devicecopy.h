// The run's own copy of the device folder: the sandbox may change it freely
// while the original stays as it is.
#pragma once

#include <QString>

// Copies the content of the folder from into the existing folder to,
// keeping modes and times. On failure error says why.
bool copyDeviceFolder(const QString &from, const QString &to, QString &error);

// Makes sure the copy holds the mount table file that /etc/mtab shows: a
// missing one is created empty. Returns false when it had to be created.
bool ensureMountTable(const QString &copy, const QString &name);
