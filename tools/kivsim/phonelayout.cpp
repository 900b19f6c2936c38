#include "phonelayout.h"

namespace PhoneLayout {

namespace {

// Folders the sandbox makes itself; the host's own are never shown whole.
const QStringList sandboxFolders = {
    QStringLiteral("/"),    QStringLiteral("/proc"), QStringLiteral("/dev"), QStringLiteral("/tmp"),
    QStringLiteral("/run"), QStringLiteral("/etc"),  QStringLiteral("/usr"),
};
// The kernel's and bwrap's: nothing can be placed inside.
const QStringList systemOnlyFolders = {QStringLiteral("/proc"), QStringLiteral("/dev")};

bool isWithin(const QString &path, const QString &folder)
{
    return path == folder || folder == QLatin1String("/") || path.startsWith(folder + u'/');
}

} // namespace

QList<Storage> allStorages(const SandboxSettings &settings)
{
    return {
        {QStringLiteral("phone memory"), QStringLiteral("phone"),
         QLatin1String(KivPaths::PhoneMemory), settings.phoneSize},
        {QStringLiteral("memory card"), QStringLiteral("card"), QLatin1String(KivPaths::MemoryCard),
         settings.cardSize},
        {QStringLiteral("MegaSIM"), QStringLiteral("megasim"), QLatin1String(KivPaths::MegaSim),
         settings.megaSimSize},
    };
}

QList<Storage> presentStorages(const SandboxSettings &settings)
{
    QList<Storage> present;
    for (const Storage &storage : allStorages(settings)) {
        if (storage.size > 0)
            present.append(storage);
    }
    return present;
}

QList<SystemFolder> systemFolders()
{
    return {
        {QStringLiteral("data_resource"), preloadRoot},
        {QStringLiteral("tambro"), systemConfigFolder},
    };
}

QStringList deviceEntries(const SandboxSettings &settings)
{
    QStringList entries = {settings.mountTable};
    for (const Storage &storage : allStorages(settings))
        entries << storage.contentFolder;
    for (const SystemFolder &folder : systemFolders())
        entries << folder.contentFolder;
    return entries;
}

QStringList fixedPlaces(const SandboxSettings &settings)
{
    QStringList places = {kivsimFolder, mountTable};
    for (const SystemFolder &folder : systemFolders())
        places << folder.mountPoint;
    for (const Storage &storage : allStorages(settings))
        places << storage.mountPoint;
    return places;
}

QString clashWithPhone(const QString &path, const QStringList &places)
{
    if (sandboxFolders.contains(path))
        return QStringLiteral("%1 is the sandbox's own folder").arg(path);
    for (const QString &folder : systemOnlyFolders) {
        if (isWithin(path, folder))
            return QStringLiteral("%1 lies in the sandbox's own %2").arg(path, folder);
    }
    for (const QString &place : places) {
        if (path == place)
            return QStringLiteral("%1 is a place of the phone").arg(path);
        if (isWithin(place, path))
            return QStringLiteral("%1 holds the phone's %2").arg(path, place);
        if (isWithin(path, place))
            return QStringLiteral("%1 lies in the phone's %2").arg(path, place);
    }
    return QString();
}

} // namespace PhoneLayout
