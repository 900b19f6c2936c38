// Where the phone's parts appear inside the sandbox. The mount points and the
// two system folders are the ones the library looks for on a real phone.
#pragma once

#include "sandboxsettings.h"

#include <QList>
#include <QString>

namespace PhoneLayout {

inline const QString deviceFolder = QStringLiteral("/run/kivsim/device");
inline const QString deviceFile = QStringLiteral("/run/kivsim/device/device.ini");
inline const QString mountTable = QStringLiteral("/etc/mtab");
inline const QString preloadRoot = QStringLiteral("/usr/data_resource");
inline const QString systemConfigFolder = QStringLiteral("/usr/SYSqtapp/tambro");

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

} // namespace PhoneLayout
