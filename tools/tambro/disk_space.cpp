#include "disk_space.h"

#include <TAMBRO_Global.h>

QJsonObject diskSpace(const QString &path)
{
    double available = 0;
    double total = 0;
    if (path.isEmpty() || !TAMBRO_Global::getDiskSize(path, available, total)) {
        const QString none = QStringLiteral("-");
        return {{QStringLiteral("available"), QJsonValue::Null},
                {QStringLiteral("total"), QJsonValue::Null},
                {QStringLiteral("availableText"), none},
                {QStringLiteral("totalText"), none}};
    }
    return {{QStringLiteral("available"), available},
            {QStringLiteral("total"), total},
            {QStringLiteral("availableText"), TAMBRO_Global::uintSizeToGbMbStr(available, 1)},
            {QStringLiteral("totalText"), TAMBRO_Global::uintSizeToGbMbStr(total, 1)}};
}
