#include "sandboxsettings.h"

#include "platformcommon/keyfile.h"

#include <QDir>

#include <limits>

namespace {

const QString sectionName = QStringLiteral("sandbox");

std::optional<qint64> unitOf(QChar suffix)
{
    switch (suffix.toUpper().unicode()) {
    case u'K':
        return Q_INT64_C(1) << 10;
    case u'M':
        return Q_INT64_C(1) << 20;
    case u'G':
        return Q_INT64_C(1) << 30;
    default:
        return std::nullopt;
    }
}

class SectionReader
{
public:
    explicit SectionReader(const QString &origin) : m_log(origin) {}

    void read(const KeyFile::Entry &entry, SandboxSettings &settings);
    QStringList warnings() const { return m_log.lines(); }

private:
    void readSize(const KeyFile::Entry &entry, qint64 &target);
    void readWritePath(const KeyFile::Entry &entry, QString &target);
    void readFileName(const KeyFile::Entry &entry, QString &target);
    void readFlag(const KeyFile::Entry &entry, bool &target);
    void warn(const KeyFile::Entry &entry, const QString &why);

    WarningLog m_log;
};

void SectionReader::read(const KeyFile::Entry &entry, SandboxSettings &settings)
{
    if (entry.key == QLatin1String("mtab"))
        readFileName(entry, settings.mountTable);
    else if (entry.key == QLatin1String("phone_size"))
        readSize(entry, settings.phoneSize);
    else if (entry.key == QLatin1String("card_size"))
        readSize(entry, settings.cardSize);
    else if (entry.key == QLatin1String("megasim_size"))
        readSize(entry, settings.megaSimSize);
    else if (entry.key == QLatin1String("data_path"))
        settings.dataPath = entry.value;
    else if (entry.key == QLatin1String("write_path"))
        readWritePath(entry, settings.writePath);
    else if (entry.key == QLatin1String("services"))
        readFlag(entry, settings.services);
    else
        warn(entry, QStringLiteral("unknown key; ignored"));
}

void SectionReader::readSize(const KeyFile::Entry &entry, qint64 &target)
{
    if (const std::optional<qint64> size = parseByteSize(entry.value))
        target = *size;
    else
        warn(entry, QStringLiteral("%1 is not a size in bytes (with K, M or G); no storage")
                        .arg(KeyFile::quoted(entry.value.trimmed())));
}

void SectionReader::readWritePath(const KeyFile::Entry &entry, QString &target)
{
    // Odd values are passed on as they are; only the folder needs a usable path.
    target = entry.value;
    if (folderOf(entry.value).isEmpty())
        warn(entry, QStringLiteral("not an absolute path; no folder is made for it"));
}

void SectionReader::readFileName(const KeyFile::Entry &entry, QString &target)
{
    const QString name = entry.value.trimmed();
    const QString cleaned = QDir::cleanPath(name);
    // The cleaned name is judged: "a/../:x" would become a Qt resource path.
    if (name.isEmpty() || QDir::isAbsolutePath(cleaned) || cleaned.startsWith(QLatin1String(".."))) {
        warn(entry, QStringLiteral("not a file inside the device folder; \"%1\" is used")
                        .arg(target));
        return;
    }
    target = cleaned;
}

void SectionReader::readFlag(const KeyFile::Entry &entry, bool &target)
{
    const std::optional<qint64> value = KeyFile::toNumber(entry.value);
    if (value == 0 || value == 1)
        target = *value == 1;
    else
        warn(entry, QStringLiteral("%1 is neither 0 nor 1; %2 is used").arg(KeyFile::quoted(entry.value)).arg(target));
}

void SectionReader::warn(const KeyFile::Entry &entry, const QString &why)
{
    m_log.add(entry.line, QStringLiteral("[%1] %2: %3")
                              .arg(sectionName, KeyFile::shortened(entry.key), why));
}

} // namespace

SandboxSettings SandboxSettings::from(const KeyFile &device, const QString &origin,
                                      QStringList &warnings)
{
    SandboxSettings settings;
    const KeyFile::Section *section = device.section(sectionName);
    if (!section)
        return settings;
    SectionReader reader(origin);
    for (const KeyFile::Entry &entry : section->entries)
        reader.read(entry, settings);
    warnings += reader.warnings();
    return settings;
}

std::optional<qint64> parseByteSize(const QString &text)
{
    QString number = text.trimmed();
    qint64 unit = 1;
    // A hex number may end in a letter, but never in K, M or G.
    if (!number.isEmpty()) {
        if (const std::optional<qint64> suffixUnit = unitOf(number.back())) {
            unit = *suffixUnit;
            number.chop(1);
        }
    }
    const std::optional<qint64> count = KeyFile::toNumber(number);
    if (!count || *count < 0 || *count > std::numeric_limits<qint64>::max() / unit)
        return std::nullopt;
    return *count * unit;
}

QString folderOf(const QString &pathSetting)
{
    const QString path = pathSetting.trimmed();
    if (!path.startsWith(u'/'))
        return QString();
    return QDir::cleanPath(path);
}
