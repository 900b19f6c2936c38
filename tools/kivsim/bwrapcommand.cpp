#include "bwrapcommand.h"

#include "hostview.h"
#include "phonelayout.h"
#include "sandboxrunner.h"
#include "shellquote.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

#include <cerrno>
#include <climits>
#include <cstring>
#include <fcntl.h>
#include <unistd.h>

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

// The descriptor moved above the one the start script reports on, which the
// child's would otherwise replace. -1 stays -1.
int aboveStartedFd(int fd)
{
    if (fd < 0 || fd > CommandStartedFd)
        return fd;
    const int moved = ::fcntl(fd, F_DUPFD_CLOEXEC, CommandStartedFd + 1);
    ::close(fd);
    return moved;
}

// Where an open file is, all links resolved.
QString pathOf(int fd)
{
    QByteArray target(PATH_MAX, Qt::Uninitialized);
    const QByteArray link = "/proc/self/fd/" + QByteArray::number(fd);
    const ssize_t length = ::readlink(link.constData(), target.data(), size_t(target.size()));
    target.truncate(length < 0 ? 0 : qsizetype(length));
    return QFile::decodeName(target);
}

// The path with its links resolved where it exists; else as written, cleaned.
QString resolvedPath(const QString &path)
{
    const QFileInfo info(path);
    const QString real = info.canonicalFilePath();
    return real.isEmpty() ? QDir::cleanPath(info.absoluteFilePath()) : real;
}

// The capabilities that the phone's programs keep when kivsim runs as root:
// making the fixed folders the phone's user's, and writing in any storage
// folder. No mount, no device, nothing of another process.
const QStringList programCapabilities = {QStringLiteral("chown"),
                                         QStringLiteral("dac_override")};
// Those the start script needs on top, to hand over to the phone's user.
const QStringList startCapabilities = {QStringLiteral("CAP_SETUID"), QStringLiteral("CAP_SETGID"),
                                       QStringLiteral("CAP_SETPCAP")};

} // namespace

BwrapCommand::BwrapCommand(const QString &deviceCopy, const SandboxSettings &settings)
    : m_deviceCopy(deviceCopy), m_settings(settings), m_asRoot(::geteuid() == 0)
{
}

BwrapCommand::BwrapCommand(const HostPhone &phone) : m_onHost(true)
{
    bindStorage(phone.phoneFolder, QLatin1String(KivPaths::PhoneMemory));
    if (!phone.cardFolder.isEmpty())
        bindStorage(phone.cardFolder, QLatin1String(KivPaths::MemoryCard));
    m_deviceCopy = phone.dataFolder;
}

// By a descriptor, so that the folder judged is the folder bound.
void BwrapCommand::bindStorage(const QString &folder, const QString &mountPoint)
{
    const int fd = aboveStartedFd(::open(QFile::encodeName(folder).constData(), O_PATH | O_DIRECTORY | O_CLOEXEC));
    const QString problem = fd < 0 ? QString::fromLocal8Bit(std::strerror(errno)) : unfitStorageFolder(pathOf(fd));
    if (!problem.isEmpty() && m_storageProblem.isEmpty())
        m_storageProblem = QStringLiteral("cannot use %1: %2").arg(folder, problem);
    m_storageBinds.append(StorageBind{fd, mountPoint});
}

BwrapCommand::~BwrapCommand()
{
    for (const StorageBind &bind : std::as_const(m_storageBinds)) {
        if (bind.fd >= 0)
            ::close(bind.fd);
    }
    for (const Revealed &revealed : std::as_const(m_revealed)) {
        if (revealed.fd >= 0)
            ::close(revealed.fd);
    }
}

void BwrapCommand::protectFolder(const QString &folder)
{
    m_protectedFolder = resolvedPath(folder);
}

QString BwrapCommand::revealHostPath(const QString &path, Access access, int openFile)
{
    if (access == Access::ReadOnly) {
        const QString resolved = resolvedPath(path);
        if (!sandboxHides(resolved))
            return QString();
        const QString clash = clashOf(resolved, access);
        if (clash.isEmpty() && !m_revealed.contains(resolved))
            m_revealed.insert(resolved, Revealed{});
        return clash;
    }
    const int fd = openFile >= 0
        ? ::fcntl(openFile, F_DUPFD_CLOEXEC, CommandStartedFd + 1)
        : aboveStartedFd(::open(QFile::encodeName(path).constData(), O_PATH | O_CLOEXEC));
    if (fd < 0)
        return QString::fromLocal8Bit(std::strerror(errno));
    const QString resolved = pathOf(fd);
    const QString clash = clashOf(resolved, access);
    if (!clash.isEmpty() || m_revealed.value(resolved).fd >= 0) {
        ::close(fd);
        return clash;
    }
    m_revealed.insert(resolved, Revealed{access, fd});
    return QString();
}

QList<int> BwrapCommand::descriptors() const
{
    QList<int> fds;
    for (const Revealed &revealed : m_revealed) {
        if (revealed.fd >= 0)
            fds << revealed.fd;
    }
    for (const StorageBind &bind : m_storageBinds)
        fds << bind.fd;
    return fds;
}

QString BwrapCommand::clashOf(const QString &path, Access access) const
{
    if (access == Access::ReadWrite && !m_protectedFolder.isEmpty()
        && isWithin(path, m_protectedFolder))
        return QStringLiteral("%1 lies in the device folder, which a run never changes").arg(path);
    return PhoneLayout::clashWithPhone(path, phonePlaces());
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
    // A session of its own, so that the command cannot push input into the
    // caller's terminal (TIOCSTI).
    return QStringList{QStringLiteral("--unshare-pid"), QStringLiteral("--die-with-parent"),
                       QStringLiteral("--new-session")}
        + privilegeArguments() + hostArguments() + revealArguments() + deviceArguments() + storageArguments()
        + QStringList{QStringLiteral("--remount-ro"), QStringLiteral("/")} + processArguments()
        + QStringList{QStringLiteral("--"), QStringLiteral("/bin/sh"), QStringLiteral("-c"),
                      fillScript(), QStringLiteral("kivsim")}
        + command;
}

// Everything the phone puts in place of the host; the host makes room for it.
QStringList BwrapCommand::phonePlaces() const
{
    QStringList places = PhoneLayout::fixedPlaces(m_settings);
    if (m_onHost) // the system's own mount table, shown as the host has it
        places.removeOne(PhoneLayout::mountTable);
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
    QStringList binds;
    if (!m_onHost)
        binds = {QStringLiteral("--bind"), m_deviceCopy, PhoneLayout::deviceFolder,
                 QStringLiteral("--bind"), copy.filePath(m_settings.mountTable), PhoneLayout::mountTable};
    for (const PhoneLayout::SystemFolder &folder : PhoneLayout::systemFolders()) {
        if (QFileInfo(copy.filePath(folder.contentFolder)).isDir())
            binds << QStringLiteral("--ro-bind") << copy.filePath(folder.contentFolder)
                  << folder.mountPoint;
    }
    // bwrap makes the folders that hold a bind's mount point 0700, closed to
    // a command that is not root: they are made beforehand, open to all.
    QStringList arguments;
    for (qsizetype i = 2; i < binds.size(); i += 3) {
        for (QString folder = QFileInfo(binds.at(i)).path(); folder != QLatin1String("/");
             folder = QFileInfo(folder).path()) {
            if (!arguments.contains(folder) && !replacedRootEntries.contains(folder.mid(1)))
                arguments << QStringLiteral("--perms") << QStringLiteral("0755") << QStringLiteral("--dir")
                          << folder;
        }
    }
    return arguments + binds;
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
    return arguments + hostStorageArguments();
}

QStringList BwrapCommand::hostStorageArguments() const
{
    QStringList arguments;
    for (const StorageBind &bind : m_storageBinds)
        arguments << QStringLiteral("--bind-fd") << QString::number(bind.fd) << bind.mountPoint;
    return arguments;
}

// bwrap as root keeps every capability unless told: the start script keeps
// what it needs to hand the command over to the phone's user.
QStringList BwrapCommand::privilegeArguments() const
{
    if (!m_asRoot)
        return QStringList();
    QStringList arguments = {QStringLiteral("--cap-drop"), QStringLiteral("ALL")};
    for (const QString &capability : programCapabilities)
        arguments << QStringLiteral("--cap-add") << QStringLiteral("CAP_") + capability.toUpper();
    for (const QString &capability : startCapabilities)
        arguments << QStringLiteral("--cap-add") << capability;
    return arguments;
}

// Writable paths by the descriptor that was judged; the protected folder
// read-only again over a writable folder that holds it.
QStringList BwrapCommand::revealArguments() const
{
    QStringList arguments;
    bool protectedFolderExposed = false;
    for (auto it = m_revealed.cbegin(); it != m_revealed.cend(); ++it) {
        if (it->access == Access::ReadOnly) {
            arguments << QStringLiteral("--ro-bind-try") << it.key() << it.key();
            continue;
        }
        arguments << QStringLiteral("--bind-fd") << QString::number(it->fd) << it.key();
        protectedFolderExposed |= !m_protectedFolder.isEmpty() && isWithin(m_protectedFolder, it.key());
    }
    if (protectedFolderExposed)
        arguments << QStringLiteral("--ro-bind") << m_protectedFolder << m_protectedFolder;
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
    lines << QStringLiteral("printf started >&%1; exec %1>&-").arg(CommandStartedFd);
    if (!m_asRoot) {
        lines << QStringLiteral("exec \"$@\"");
        return lines.join(u'\n');
    }
    // As the phone's user, with only the capabilities it needs: the host's
    // device nodes and the caller's terminal, root's, are then not its own.
    if (m_ownRuntimeFolder)
        lines << QStringLiteral("chown %1:%2 %3")
                     .arg(KivPaths::UserFilesOwner)
                     .arg(KivPaths::UserFilesGroup)
                     .arg(PhoneLayout::runtimeFolder);
    const QString capabilities = QStringLiteral("-all,+") + programCapabilities.join(QStringLiteral(",+"));
    lines << QStringLiteral("exec setpriv --reuid=%1 --regid=%2 --clear-groups --no-new-privs "
                            "--inh-caps=%3 --ambient-caps=%3 --bounding-set=%3 -- \"$@\"")
                 .arg(KivPaths::UserFilesOwner)
                 .arg(KivPaths::UserFilesGroup)
                 .arg(capabilities);
    return lines.join(u'\n');
}
