#include "device.h"

#include "warning.h"

#include "mimeanswers/system_mime_database.h"

#include <QByteArrayView>
#include <QDebug>
#include <QDir>
#include <QFile>
#include <QFileInfo>

#include <algorithm>
#include <climits>
#include <cstdlib>
#include <mutex>
#include <optional>

#include <sys/stat.h>
#include <time.h>

namespace KivSim {

namespace {

// ----- reading values ------------------------------------------------------
// Each returns an empty text when the value was stored, else why it was not.

QString readNumber(const QString &value, qint64 min, qint64 max, qint64 &out)
{
    const std::optional<qint64> number = KeyFile::toNumber(value);
    if (!number)
        return QStringLiteral("%1 is not a number (decimal or 0x hex)").arg(KeyFile::quoted(value.trimmed()));
    if (*number < min || *number > max)
        return QStringLiteral("%1 is not between %2 and %3").arg(*number).arg(min).arg(max);
    out = *number;
    return QString();
}

// Stores a number from min to max into target, which otherwise keeps its default.
template<typename T>
QString readNumberInto(const QString &value, qint64 min, qint64 max, T &target)
{
    qint64 number = 0;
    const QString error = readNumber(value, min, max, number);
    if (!error.isEmpty())
        return error + QStringLiteral("; keeps its default %1").arg(qint64(target));
    target = T(number);
    return QString();
}

QString readInt(const QString &value, int &target)
{
    return readNumberInto(value, INT_MIN, INT_MAX, target);
}

QString readByte(const QString &value, quint8 &target)
{
    return readNumberInto(value, 0, 255, target);
}

QString readBool(const QString &value, bool &target)
{
    return readNumberInto(value, 0, 1, target);
}

QString readLabel(const QString &value, QByteArray &target)
{
    target = value.toUtf8();
    if (target.size() <= UTIL_MMCSD_LABEL_LENGTH)
        return QString();
    target.truncate(UTIL_MMCSD_LABEL_LENGTH);
    return QStringLiteral("longer than %1 bytes; only \"%2\" is used")
        .arg(UTIL_MMCSD_LABEL_LENGTH)
        .arg(QString::fromUtf8(target));
}

// A value as the phone's registry would hold it: trimmed, or exactly what
// stands between double quotes, so that a type may begin with blanks.
QString unquoted(const QString &value)
{
    const QString trimmed = value.trimmed();
    if (trimmed.size() >= 2 && trimmed.startsWith(u'"') && trimmed.endsWith(u'"'))
        return trimmed.mid(1, trimmed.size() - 2);
    return trimmed;
}

// ----- the fixed sections --------------------------------------------------

struct KeyRule
{
    const char *section;
    const char *key;
    QString (*read)(const QString &value, DeviceState &state);
};

const KeyRule keyRules[] = {
    {"card", "status", [](const QString &v, DeviceState &s) { return readInt(v, s.card.status); }},
    {"card", "info", [](const QString &v, DeviceState &s) { return readInt(v, s.card.info); }},
    {"card", "byte0", [](const QString &v, DeviceState &s) { return readByte(v, s.card.cardFlags); }},
    {"card", "byte2", [](const QString &v, DeviceState &s) { return readByte(v, s.card.formatFlags); }},
    {"card", "label", [](const QString &v, DeviceState &s) { return readLabel(v, s.card.label); }},
    {"megasim", "initialize",
     [](const QString &v, DeviceState &s) { return readBool(v, s.megaSim.initialize); }},
    {"megasim", "subtree",
     [](const QString &v, DeviceState &s) { return readInt(v, s.megaSim.subtree); }},
    {"megasim", "node", [](const QString &v, DeviceState &s) { return readBool(v, s.megaSim.node); }},
    {"megasim", "value",
     [](const QString &v, DeviceState &s) { return readBool(v, s.megaSim.value); }},
    {"megasim", "name",
     [](const QString &v, DeviceState &s) {
         s.megaSim.name = v.toUtf8();
         return QString();
     }},
    {"registry", "system",
     [](const QString &v, DeviceState &s) { return readBool(v, s.systemMimeDatabase); }},
    {"icons", "dir",
     [](const QString &v, DeviceState &s) {
         s.iconDir = v.trimmed();
         return QString();
     }},
};

const KeyRule *ruleFor(const QString &section, const QString &key)
{
    for (const KeyRule &rule : keyRules) {
        if (section == QLatin1String(rule.section) && key == QLatin1String(rule.key))
            return &rule;
    }
    return nullptr;
}

bool isFixedSection(const QString &section)
{
    for (const KeyRule &rule : keyRules) {
        if (section == QLatin1String(rule.section))
            return true;
    }
    return false;
}

class StateReader
{
public:
    explicit StateReader(const QString &origin) : m_log(origin) {}

    void readFixed(const KeyFile::Section &section, DeviceState &state);
    void readFlexBits(const KeyFile::Section &section, DeviceState &state);
    void readServices(const KeyFile::Section &section, DeviceState &state);
    // [mime] and [handlers]: free keys; values are trimmed or quoted, and an
    // empty one lists nothing.
    KeyFile::Section readMap(const KeyFile::Section &section);
    void warnUnknownSection(const KeyFile::Section &section);
    QStringList warnings() const { return m_log.lines(); }

private:
    void warn(const KeyFile::Section &section, const KeyFile::Entry &entry, const QString &why);

    WarningLog m_log;
};

void StateReader::readFixed(const KeyFile::Section &section, DeviceState &state)
{
    for (const KeyFile::Entry &entry : section.entries) {
        const KeyRule *rule = ruleFor(section.name, entry.key);
        if (!rule) {
            warn(section, entry, QStringLiteral("unknown key; ignored"));
            continue;
        }
        const QString error = rule->read(entry.value, state);
        if (!error.isEmpty())
            warn(section, entry, error);
    }
}

void StateReader::readFlexBits(const KeyFile::Section &section, DeviceState &state)
{
    for (const KeyFile::Entry &entry : section.entries) {
        const std::optional<qint64> bit = KeyFile::toNumber(entry.key);
        if (!bit || *bit < 0 || *bit > 0xFFFF) {
            warn(section, entry, QStringLiteral("not a bit number from 0 to 65535; ignored"));
            continue;
        }
        qint64 value = 0;
        const QString error = readNumber(entry.value, 0, 1, value);
        if (!error.isEmpty()) {
            warn(section, entry, error + QStringLiteral("; the bit stays unlisted"));
            continue;
        }
        state.flexBits.insert(quint16(*bit), value != 0);
    }
}

// The operations of the services library whose answer a device may set.
const QStringList serviceOperations = {
    "J2ME_JAID_ViewJad", "JAVA_Install", "JAVA_Uninstall", "QT_Install", "MP_Preview", "ME_Preview",
    "GLINT_Preview", "Browser_EditBookmark", "BlueTooth_ShareFiles", "Browser_AddBookmark",
    "UpdateBookmarkTitle", "Email_ShareFiles", "Theme_ApplytoFile", "SDMgr_ApplytoFile",
    "QuickSend_GetContact", "QuickSend_SendMessage", "PRTCTR_GetPrintMethods", "PRTCTR_IsIndexSupported",
    "PRTCTR_Print"};

void StateReader::readServices(const KeyFile::Section &section, DeviceState &state)
{
    for (const KeyFile::Entry &entry : section.entries) {
        int answer = 0;
        const QString error = serviceOperations.contains(entry.key)
            ? readInt(entry.value, answer)
            : QStringLiteral("no operation of the services library; ignored");
        if (error.isEmpty())
            state.services.insert(entry.key, answer);
        else
            warn(section, entry, error);
    }
}

KeyFile::Section StateReader::readMap(const KeyFile::Section &section)
{
    KeyFile::Section result{section.name, section.line, {}};
    for (KeyFile::Entry entry : section.entries) {
        entry.value = unquoted(entry.value);
        if (!entry.value.isEmpty())
            result.entries.append(entry);
    }
    return result;
}

void StateReader::warnUnknownSection(const KeyFile::Section &section)
{
    m_log.add(section.line, QStringLiteral("unknown section [%1]; ignored")
                                .arg(KeyFile::shortened(section.name)));
}

void StateReader::warn(const KeyFile::Section &section, const KeyFile::Entry &entry,
                       const QString &why)
{
    m_log.add(entry.line, QStringLiteral("[%1] %2: %3")
                              .arg(KeyFile::shortened(section.name), KeyFile::shortened(entry.key),
                                   why));
}

// Builds the state from the parsed device file at path (which names it in
// messages and anchors a relative icon folder). Messages about values that
// cannot be used are appended to warnings; such values keep their defaults.
DeviceState deviceStateFrom(const KeyFile &file, const QString &path, QStringList &warnings)
{
    DeviceState state;
    StateReader reader(path);
    KeyFile::Section mimeTypes;
    KeyFile::Section handlers;
    for (const KeyFile::Section &section : file.sections()) {
        if (isFixedSection(section.name))
            reader.readFixed(section, state);
        else if (section.name == QLatin1String("services"))
            reader.readServices(section, state);
        else if (section.name == QLatin1String("flex"))
            reader.readFlexBits(section, state);
        else if (section.name == QLatin1String("mime"))
            mimeTypes = reader.readMap(section);
        else if (section.name == QLatin1String("handlers"))
            handlers = reader.readMap(section);
        else if (section.name == QLatin1String("sandbox"))
            continue; // the kivsim launcher's layout of the phone
        else
            reader.warnUnknownSection(section);
    }
    if (!state.iconDir.isEmpty())
        state.iconDir = QFileInfo(path).absoluteDir().absoluteFilePath(state.iconDir);
    // Built last: [registry] may come after [mime].
    state.mime = std::make_shared<const MimeLookup>(
        mimeTypes, handlers, state.systemMimeDatabase ? &MimeAnswers::SystemMimeDatabase::host() : nullptr);
    warnings += reader.warnings();
    return state;
}

// ----- watching the file ---------------------------------------------------

struct FileStamp
{
    bool exists = false;
    dev_t device = 0;
    ino_t inode = 0;
    off_t size = 0;
    timespec mtime = {};

    bool operator==(const FileStamp &other) const
    {
        return exists == other.exists && device == other.device && inode == other.inode
            && size == other.size && mtime.tv_sec == other.mtime.tv_sec
            && mtime.tv_nsec == other.mtime.tv_nsec;
    }
    bool operator!=(const FileStamp &other) const { return !(*this == other); }
};

FileStamp stampOf(const QByteArray &path)
{
    struct stat info;
    if (path.isEmpty() || ::stat(path.constData(), &info) != 0)
        return {};
    return {true, info.st_dev, info.st_ino, info.st_size, info.st_mtim};
}

std::shared_ptr<const DeviceState> readDeviceFile(const QString &path)
{
    const KeyFile file = KeyFile::load(path);
    QStringList warnings = file.warnings();
    auto state = std::make_shared<const DeviceState>(deviceStateFrom(file, path, warnings));
    // The parser's and the values' messages together, in the file's line order.
    const auto lineOf = [prefix = path.size() + 1](const QString &warning) {
        return QStringView(warning).mid(prefix).split(u':').value(0).toInt();
    };
    std::stable_sort(warnings.begin(), warnings.end(), [&](const QString &a, const QString &b) {
        return lineOf(a) < lineOf(b);
    });
    for (const QString &warning : std::as_const(warnings))
        platformWarning(warning);
    return state;
}

// The system's coarse clock, in nanoseconds: it moves on in ticks of a few
// milliseconds, and reading it costs a few nanoseconds, where the precise
// clock costs as much as the rest of a platform call.
qint64 coarseClock()
{
    timespec now;
    clock_gettime(CLOCK_MONOTONIC_COARSE, &now);
    return qint64(now.tv_sec) * 1'000'000'000 + now.tv_nsec;
}

class DeviceFile
{
public:
    std::shared_ptr<const DeviceState> current();
    void lookAgain()
    {
        std::lock_guard<std::mutex> lock(m_mutex);
        m_lookedAt = -1;
    }

private:
    std::mutex m_mutex;
    qint64 m_lookedAt = -1; // the coarse clock's time at the last look; -1: look at once
    FileStamp m_stamp;
    std::shared_ptr<const DeviceState> m_state;
};

std::shared_ptr<const DeviceState> DeviceFile::current()
{
    // Named once per process: reading the environment on every call would
    // cost more than the look-ups the platform answers.
    static const QByteArray path = qgetenv("KIVSIM_DEVICE");
    std::lock_guard<std::mutex> lock(m_mutex);
    // Looked at once per tick of the coarse clock at most: a stat costs more
    // than a listed file's three or four questions together, and a person or
    // a test that changes the phone can wait a few milliseconds.
    const qint64 now = coarseClock();
    if (m_state && now == m_lookedAt)
        return m_state;
    // Timed from before the stat: a change made while it runs is seen at the next look.
    m_lookedAt = now;
    const FileStamp stamp = stampOf(path);
    if (!m_state || stamp != m_stamp) {
        m_stamp = stamp;
        m_state = stamp.exists ? readDeviceFile(QFile::decodeName(path))
                               : std::make_shared<const DeviceState>();
    }
    return m_state;
}

DeviceFile &deviceFile()
{
    static DeviceFile file;
    return file;
}

} // namespace

std::shared_ptr<const DeviceState> device()
{
    return deviceFile().current();
}

void lookAtDeviceAgain()
{
    deviceFile().lookAgain();
}

} // namespace KivSim
