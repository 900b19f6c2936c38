// The [sandbox] section of a device file: how kivsim lays out the phone.
// Only kivsim reads it; the simulated platform ignores it.
#pragma once

#include "platform/KIV_Paths.h"

#include <QString>
#include <QStringList>

#include <optional>

class KeyFile;

struct SandboxSettings
{
    QString mountTable = QStringLiteral("mtab"); // file in the device folder
    qint64 phoneSize = 0; // bytes; 0 means no such storage
    qint64 cardSize = 0;
    qint64 megaSimSize = 0;
    // Given to the program as written, so that odd values can be tried. Only
    // the write path gets a folder; the data path normally names a storage.
    QString dataPath = QLatin1String(KivPaths::PhoneMemory);
    QString writePath = QStringLiteral("/kivlocal/appdata");
    bool services = true; // whether the phone has the services library

    // Values that cannot be used keep their defaults; each is reported in
    // warnings as "origin:line: message".
    static SandboxSettings from(const KeyFile &device, const QString &origin,
                                QStringList &warnings);
};

// "512", "0x200", "64K", "32M", "1G": a byte count; the suffixes count in
// powers of 1024. Nothing for negative numbers, overflow or other text.
std::optional<qint64> parseByteSize(const QString &text);

// The folder a path setting names, cleaned of blanks and trailing slashes;
// empty when it is not an absolute path.
QString folderOf(const QString &pathSetting);
