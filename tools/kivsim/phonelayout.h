// Where the phone's parts appear inside the sandbox. The mount points and the
// two system folders are the ones the library looks for on a real phone.
#pragma once

#include "sandboxsettings.h"

#include "platform/KIV_Paths.h"

#include <QList>
#include <QString>
#include <QStringList>

namespace PhoneLayout {

// kivsim's own folder inside: the device copy and, when the host shares none,
// the runtime folder.
inline const QString kivsimFolder = QStringLiteral("/run/kivsim");
inline const QString deviceFolder = QStringLiteral("/run/kivsim/device");
inline const QString deviceFile = QStringLiteral("/run/kivsim/device/device.ini");
inline const QString runtimeFolder = QStringLiteral("/run/kivsim/runtime");
inline const QString mountTable = QLatin1String(KivPaths::MountTable);
inline const QString preloadRoot = QLatin1String(KivPaths::PreloadRoot);
inline const QString systemConfigFolder = QLatin1String(KivPaths::FileManagerSystemFolder);

// A storage of the phone: a size-limited folder filled from the device folder.
struct Storage
{
    QString description; // for messages
    QString contentFolder; // relative to the device folder
    QString mountPoint;
    qint64 size = 0;
};

// The phone memory, the memory card and the MegaSIM, with the device's sizes.
QList<Storage> allStorages(const SandboxSettings &settings);
// Those the device has: a storage of size 0 is left out.
QList<Storage> presentStorages(const SandboxSettings &settings);

// Device folder entries shown read-only at fixed places: the preloaded
// content and the system's folder structure file.
struct SystemFolder
{
    QString contentFolder;
    QString mountPoint;
};
QList<SystemFolder> systemFolders();

// The device folder's entries that the sandbox shows or fills from: the mount
// table file and the content folders, relative to the device folder.
QStringList deviceEntries(const SandboxSettings &settings);

// The phone's fixed places inside, the storages' mount points among them even
// where the device lacks the storage: they stay absent then. Without the
// write folder, which is placed among them.
QStringList fixedPlaces(const SandboxSettings &settings);

// Why nothing of the host can be shown at path without breaking the phone:
// the path is one of the sandbox's own folders (/, /tmp, /run, ...), or it is,
// holds or lies in one of the places. Empty when it can be shown.
QString clashWithPhone(const QString &path, const QStringList &places);

} // namespace PhoneLayout
