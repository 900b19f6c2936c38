#include "feature_table.h"

#include "keyfile.h"

#include <QDir>

namespace {

struct Default
{
    unsigned short bit;
    bool value;
};

constexpr Default Defaults[] = {{149, false}, {162, false}, {205, false}, {212, false}, {514, false}};

std::optional<bool> setIn(const QString &folder, unsigned short bit)
{
    const KeyFile file = KeyFile::load(QDir(folder).filePath(QLatin1String(KivHost::FeatureFileName)));
    const QString value = file.value(QStringLiteral("flex"), QString::number(bit));
    if (value == u'1' || value == u'0')
        return value == u'1';
    return std::nullopt;
}

} // namespace

namespace KivHost {

std::optional<bool> featureBit(unsigned short bit, const QStringList &configFolders)
{
    for (const QString &folder : configFolders) {
        if (const std::optional<bool> value = setIn(folder, bit))
            return value;
    }
    for (const Default &known : Defaults) {
        if (known.bit == bit)
            return known.value;
    }
    return std::nullopt;
}

} // namespace KivHost
