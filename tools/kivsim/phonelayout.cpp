#include "phonelayout.h"

namespace PhoneLayout {

QList<Storage> allStorages(const SandboxSettings &settings)
{
    return {
        {QStringLiteral("phone memory"), QStringLiteral("phone"),
         QStringLiteral("/kivlocal/download/tambro"), settings.phoneSize},
        {QStringLiteral("memory card"), QStringLiteral("card"), QStringLiteral("/mmc/mmca1"),
         settings.cardSize},
        {QStringLiteral("MegaSIM"), QStringLiteral("megasim"), QStringLiteral("/mmc/megasim1"),
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

} // namespace PhoneLayout
