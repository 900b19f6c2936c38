#include "bwrapcommand.h"

#include "hostview.h"
#include "phonelayout.h"
#include "shellquote.h"

#include <QDir>
#include <QFileInfo>

namespace {

// Parts of the host that the sandbox replaces with its own.
const QStringList replacedRootEntries = {
    QStringLiteral("proc"), QStringLiteral("dev"), QStringLiteral("tmp"),
    QStringLiteral("run"),  QStringLiteral("etc"), QStringLiteral("usr"),
};

bool isWithin(const QString &path, const QString &folder)
{
    return path == folder || path.startsWith(folder + u'/');
}

bool sandboxHides(const QString &path)
{
    return isWithin(path, QStringLiteral("/tmp")) || isWithin(path, QStringLiteral("/run"));
}

// The names that the given paths use directly inside folder.
QStringList entriesUsedIn(const QString &folder, const QStringList &paths)
{
    const QString prefix = folder.endsWith(u'/') ? folder : folder + u'/';
    QStringList names;
    for (const QString &path : paths) {
        if (path.startsWith(prefix))
            names << path.mid(prefix.size()).section(u'/', 0, 0);
    }
    return names;
}

} // namespace

BwrapCommand::BwrapCommand(const QString &deviceCopy, const SandboxSettings &settings)
    : m_deviceCopy(deviceCopy), m_settings(settings)
{
}

QString BwrapCommand::revealHostPath(const QString &path, Access access)
{
    const QString cleaned = QDir::cleanPath(QFileInfo(path).absoluteFilePath());
    if (access == Access::ReadOnly && !sandboxHides(cleaned))
        return QString();
    const QString clash = PhoneLayout::clashWithPhone(cleaned, phonePlaces());
    if (!clash.isEmpty())
        return clash;
    if (m_revealed.value(cleaned, Access::ReadOnly) == Access::ReadOnly)
        m_revealed.insert(cleaned, access);
    return QString();
}

void BwrapCommand::useOwnRuntimeFolder()
{
    m_ownRuntimeFolder = true;
    setEnvironment(QStringLiteral("XDG_RUNTIME_DIR"), PhoneLayout::runtimeFolder);
}

void BwrapCommand::setEnvironment(const QString &name, const QString &value)
{
    m_environment.append({name, value});
}

void BwrapCommand::setWorkingDirectory(const QString &path)
{
    m_workingDirectory = path;
    revealHostPath(path, Access::ReadOnly);
}

QStringList BwrapCommand::arguments(const QStringList &command) const
{
    // The sandbox's own root holds only folders made for the mounts: read-only
    // like the host, so that nothing written can get lost there. Revealed
    // host paths never overlap the phone's places, so bwrap makes no mount
    // point in a host folder. In a namespace of its own the command's whole
    // process tree ends with bwrap, which dies with kivsim.
    return QStringList{QStringLiteral("--unshare-pid"), QStringLiteral("--die-with-parent")}
        + hostArguments() + revealArguments() + deviceArguments() + storageArguments()
        + QStringList{QStringLiteral("--remount-ro"), QStringLiteral("/")} + processArguments()
        + QStringList{QStringLiteral("--"), QStringLiteral("/bin/sh"), QStringLiteral("-c"),
                      fillScript(), QStringLiteral("kivsim")}
        + command;
}

// Everything the phone puts in place of the host; the host makes room for it.
QStringList BwrapCommand::phonePlaces() const
{
    QStringList places = PhoneLayout::fixedPlaces(m_settings);
    const QString writeFolder = folderOf(m_settings.writePath);
    if (!writeFolder.isEmpty())
        places << writeFolder;
    return places;
}

// The host, read-only, with /etc and /usr rebuilt so that the phone's files fit in.
QStringList BwrapCommand::hostArguments() const
{
    const QStringList phone = phonePlaces();
    QStringList arguments = mirrorHostFolder(QStringLiteral("/"),
                                             replacedRootEntries + entriesUsedIn(QStringLiteral("/"), phone));
    arguments << QStringLiteral("--proc") << QStringLiteral("/proc") << QStringLiteral("--dev")
              << QStringLiteral("/dev") << QStringLiteral("--tmpfs") << QStringLiteral("/tmp");
    for (const QString &folder : {QStringLiteral("/etc"), QStringLiteral("/usr")}) {
        arguments << QStringLiteral("--dir") << folder;
        arguments << mirrorHostFolder(folder, entriesUsedIn(folder, phone));
    }
    return arguments;
}

QStringList BwrapCommand::deviceArguments() const
{
    const QDir copy(m_deviceCopy);
    QStringList arguments = {QStringLiteral("--bind"), m_deviceCopy, PhoneLayout::deviceFolder,
                             QStringLiteral("--bind"),
                             copy.filePath(m_settings.mountTable), PhoneLayout::mountTable};
    for (const PhoneLayout::SystemFolder &folder : PhoneLayout::systemFolders()) {
        if (QFileInfo(copy.filePath(folder.contentFolder)).isDir())
            arguments << QStringLiteral("--ro-bind") << copy.filePath(folder.contentFolder)
                      << folder.mountPoint;
    }
    return arguments;
}

QStringList BwrapCommand::storageArguments() const
{
    QStringList arguments;
    for (const PhoneLayout::Storage &storage : PhoneLayout::presentStorages(m_settings))
        arguments << QStringLiteral("--size") << QString::number(storage.size)
                  << QStringLiteral("--tmpfs") << storage.mountPoint;
    const QString writeFolder = folderOf(m_settings.writePath);
    if (!writeFolder.isEmpty())
        arguments << QStringLiteral("--tmpfs") << writeFolder;
    if (m_ownRuntimeFolder)
        arguments << QStringLiteral("--perms") << QStringLiteral("0700") << QStringLiteral("--tmpfs")
                  << PhoneLayout::runtimeFolder;
    return arguments;
}

QStringList BwrapCommand::revealArguments() const
{
    QStringList arguments;
    for (auto it = m_revealed.cbegin(); it != m_revealed.cend(); ++it) {
        const bool writable = it.value() == Access::ReadWrite;
        arguments << (writable ? QStringLiteral("--bind-try") : QStringLiteral("--ro-bind-try"))
                  << it.key() << it.key();
    }
    return arguments;
}

QStringList BwrapCommand::processArguments() const
{
    QStringList arguments;
    for (const auto &[name, value] : m_environment)
        arguments << QStringLiteral("--setenv") << name << value;
    if (!m_workingDirectory.isEmpty())
        arguments << QStringLiteral("--chdir") << m_workingDirectory;
    return arguments;
}

// The storages are mounted empty by bwrap; the command starts once they are filled.
QString BwrapCommand::fillScript() const
{
    QStringList lines = {QStringLiteral(
        "fail() { echo \"kivsim: cannot fill the $1 at $2 from the device folder\" >&2; exit 125; }")};
    const QDir copy(m_deviceCopy);
    for (const PhoneLayout::Storage &storage : PhoneLayout::presentStorages(m_settings)) {
        if (!QFileInfo(copy.filePath(storage.contentFolder)).isDir())
            continue;
        const QString source = PhoneLayout::deviceFolder + u'/' + storage.contentFolder + "/.";
        lines << QStringLiteral("cp -a %1 %2 || fail %3 %2")
                     .arg(shellQuote(source), shellQuote(storage.mountPoint),
                          shellQuote(storage.description));
    }
    lines << QStringLiteral("exec \"$@\"");
    return lines.join(u'\n');
}
