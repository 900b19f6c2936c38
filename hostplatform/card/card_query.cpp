// Asks UDisks2 on the system bus, and the kernel's mount table and sysfs.
#include "card_state.h"

#include <QDBusArgument>
#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusObjectPath>
#include <QDir>
#include <QFile>

#include <algorithm>
#include <optional>
#include <sys/sysmacros.h>

namespace KivHost {

namespace {

// ----- the kernel ----------------------------------------------------------

struct KernelMount
{
    quint64 deviceNumber = 0;
    bool readOnly = false; // the mount's or the whole file system's option
};

// Undoes the octal escapes (\040 for a space) of a mountinfo field.
QByteArray unescaped(const QByteArray &field)
{
    QByteArray text;
    for (int i = 0; i < field.size(); ++i) {
        const QByteArray digits = field.mid(i + 1, 3);
        const bool octal = digits.size() == 3
            && std::all_of(digits.begin(), digits.end(), [](char c) { return c >= '0' && c <= '7'; });
        if (field[i] == '\\' && octal) {
            text.append(char(digits.toInt(nullptr, 8)));
            i += 3;
        } else {
            text.append(field[i]);
        }
    }
    return text;
}

bool hasOption(const QByteArray &options, const char *option)
{
    return options.split(',').contains(option);
}

// The last mount at folder, which hides those before it.
std::optional<KernelMount> kernelMountAt(const CardPlaces &places, const QByteArray &folder)
{
    QFile file(places.procRoot + QStringLiteral("/self/mountinfo"));
    if (!file.open(QIODevice::ReadOnly))
        return std::nullopt;
    std::optional<KernelMount> found;
    for (const QByteArray &line : file.read(4 << 20).split('\n')) {
        // id parent major:minor root mountpoint options [optional...] - type source superoptions
        const QList<QByteArray> fields = line.split(' ');
        const qsizetype dash = fields.indexOf("-");
        if (dash < 6 || dash + 3 >= fields.size() || unescaped(fields[4]) != folder)
            continue;
        const QList<QByteArray> numbers = fields[2].split(':');
        bool majorOk = false, minorOk = false;
        const uint major = numbers.value(0).toUInt(&majorOk);
        const uint minor = numbers.value(1).toUInt(&minorOk);
        if (numbers.size() != 2 || !majorOk || !minorOk)
            continue;
        found = KernelMount{makedev(major, minor),
                            hasOption(fields[5], "ro") || hasOption(fields[dash + 3], "ro")};
    }
    return found;
}

bool sysfsReadOnly(const CardPlaces &places, quint64 deviceNumber)
{
    QFile file(places.sysRoot + QStringLiteral("/dev/block/%1:%2/ro").arg(major(deviceNumber)).arg(minor(deviceNumber)));
    return file.open(QIODevice::ReadOnly) && file.read(16).trimmed() == "1";
}

CardState cardOfKernelMount(const CardPlaces &places, const KernelMount &mount)
{
    CardState state;
    state.inserted = true;
    state.writeProtected = mount.readOnly || sysfsReadOnly(places, mount.deviceNumber);
    return state;
}

QByteArray encodedFolder(const CardPlaces &places)
{
    // A relative folder names no mount: no card, whatever else is there.
    return QDir::isAbsolutePath(places.mountFolder) ? QFile::encodeName(QDir::cleanPath(places.mountFolder)) : QByteArray();
}

// ----- UDisks2 -------------------------------------------------------------

using Interfaces = QMap<QString, QVariantMap>;
using ManagedObjects = QMap<QDBusObjectPath, Interfaces>;

const QString blockInterface = QStringLiteral("org.freedesktop.UDisks2.Block");
const QString filesystemInterface = QStringLiteral("org.freedesktop.UDisks2.Filesystem");
const QString encryptedInterface = QStringLiteral("org.freedesktop.UDisks2.Encrypted");
const QString driveInterface = QStringLiteral("org.freedesktop.UDisks2.Drive");
const QString partitionTableInterface = QStringLiteral("org.freedesktop.UDisks2.PartitionTable");

// UDisks2's objects, none when it does not answer in time. A connection
// of its own, closed at once. QtDBus reads a reply or a value of another type
// than asked as empty, so that a reply of another shape finds nothing.
ManagedObjects managedObjects(int timeoutMs)
{
    const QString name = QStringLiteral("kivhost-card");
    ManagedObjects objects;
    {
        const QDBusConnection bus = QDBusConnection::connectToBus(QDBusConnection::SystemBus, name);
        if (bus.isConnected()) {
            const QDBusMessage reply = bus.call(
                QDBusMessage::createMethodCall(QStringLiteral("org.freedesktop.UDisks2"),
                                               QStringLiteral("/org/freedesktop/UDisks2"),
                                               QStringLiteral("org.freedesktop.DBus.ObjectManager"),
                                               QStringLiteral("GetManagedObjects")),
                QDBus::Block, timeoutMs);
            if (reply.type() == QDBusMessage::ReplyMessage)
                objects = qdbus_cast<ManagedObjects>(reply.arguments().value(0));
        }
    }
    QDBusConnection::disconnectFromBus(name);
    return objects;
}

// A property of the type it should have, else fallback.
template<typename T>
T property(const QVariantMap &properties, const char *name, T fallback = T())
{
    const QVariant value = properties.value(QLatin1String(name));
    return value.metaType() == QMetaType::fromType<T>() ? value.value<T>() : fallback;
}

QByteArrayList mountPointsOf(const QVariantMap &filesystem)
{
    // A value that is not an array (none at all, or of another type) would
    // make QtDBus warn: it has none.
    QByteArrayList points;
    const QVariant value = filesystem.value(QStringLiteral("MountPoints"));
    if (value.metaType() == QMetaType::fromType<QDBusArgument>())
        value.value<QDBusArgument>() >> points;
    for (QByteArray &point : points) {
        while (point.endsWith('\0'))
            point.chop(1);
    }
    return points;
}

QVariantMap driveOf(const ManagedObjects &objects, const QVariantMap &block)
{
    return objects.value(property<QDBusObjectPath>(block, "Drive")).value(driveInterface);
}

BlockReport reportOf(const ManagedObjects &objects, const Interfaces &interfaces)
{
    const QVariantMap block = interfaces.value(blockInterface);
    BlockReport report;
    report.readOnly = property<bool>(block, "ReadOnly");
    report.idLabel = property<QString>(block, "IdLabel");
    report.idUsage = property<QString>(block, "IdUsage");
    report.size = property<qulonglong>(block, "Size");
    report.hasFilesystem = interfaces.contains(filesystemInterface);
    report.mountPoints = mountPointsOf(interfaces.value(filesystemInterface));
    report.encrypted = interfaces.contains(encryptedInterface);
    const QString cleartext = property<QDBusObjectPath>(interfaces.value(encryptedInterface), "CleartextDevice").path();
    report.hasCleartext = !cleartext.isEmpty() && cleartext != QLatin1String("/");
    report.mediaAvailable = property<bool>(driveOf(objects, block), "MediaAvailable", true);
    return report;
}

bool cannotBeMounted(const CardState &state)
{
    return state.inserted && (state.locked || state.unformatted || state.invalid);
}

bool isRemovable(const ManagedObjects &objects, const QVariantMap &block)
{
    const QVariantMap drive = driveOf(objects, block);
    return !property<bool>(block, "HintSystem")
        && (property<bool>(drive, "MediaRemovable") || property<bool>(drive, "Removable"));
}

} // namespace

QString mountedCardFolder(int timeoutMs)
{
    const ManagedObjects objects = managedObjects(timeoutMs);
    for (const Interfaces &interfaces : objects) {
        const QByteArrayList points = mountPointsOf(interfaces.value(filesystemInterface));
        if (!points.isEmpty() && isRemovable(objects, interfaces.value(blockInterface)))
            return QFile::decodeName(points.constFirst());
    }
    return QString();
}

CardState kernelCardState(const CardPlaces &places)
{
    const std::optional<KernelMount> mount = kernelMountAt(places, encodedFolder(places));
    return mount ? cardOfKernelMount(places, *mount) : CardState();
}

CardState queryCardState(const CardPlaces &places)
{
    const QByteArray folder = encodedFolder(places);
    if (folder.isEmpty())
        return CardState();
    const std::optional<KernelMount> mount = kernelMountAt(places, folder);
    const ManagedObjects objects = managedObjects(places.timeoutMs);
    for (const Interfaces &interfaces : objects) {
        BlockReport report = reportOf(objects, interfaces);
        const quint64 number = property<qulonglong>(interfaces.value(blockInterface), "DeviceNumber");
        if (report.mountPoints.contains(folder) || (mount && report.hasFilesystem && number == mount->deviceNumber)) {
            report.readOnlyMount = mount && mount->readOnly;
            return cardStateOf(report);
        }
    }
    if (mount)
        return cardOfKernelMount(places, *mount);
    for (const Interfaces &interfaces : objects) {
        const QVariantMap block = interfaces.value(blockInterface);
        const CardState state = cardStateOf(reportOf(objects, interfaces));
        if (!block.isEmpty() && !interfaces.contains(partitionTableInterface)
            && property<bool>(driveOf(objects, block), "MediaRemovable") && cannotBeMounted(state))
            return state;
    }
    return CardState();
}

} // namespace KivHost
