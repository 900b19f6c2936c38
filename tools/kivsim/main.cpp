// kivsim: runs a command in a sandbox laid out like the phone that a device
// folder describes (see docs/devices.md).

#include "bwrapcommand.h"
#include "childprocess.h"
#include "confinedpath.h"
#include "devicecopy.h"
#include "exitcodes.h"
#include "hostphone.h"
#include "installlayout.h"
#include "phonelayout.h"
#include "sandboxrunner.h"
#include "sandboxsettings.h"
#include "shellquote.h"

#include "printable/printable_text.h"
#include "platformcommon/keyfile.h"
#include "card_state.h"

#include <QCommandLineParser>
#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>
#include <QFile>
#include <QStandardPaths>
#include <QTextStream>
#include <QUrl>

#include <cerrno>
#include <cstring>
#include <optional>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace {

struct Invocation
{
    QString deviceFolder;
    QStringList command;
    bool verbose = false;
    bool keep = false;
    QStringList shared; // host folders the command may write
    bool host = false; // the phone over this machine's own services and folders
    QString phoneFolder; // on this machine: the phone memory
    QString cardFolder; // on this machine: the memory card
};

// Every line kivsim writes, escaped: paths and values come from device
// files and from other users' folders, and must not drive the terminal.
void report(const QString &message)
{
    QTextStream(stderr) << "kivsim: " << printableText(message) << Qt::endl;
}

void reportUsage(const QString &message)
{
    report(message);
    QTextStream(stderr) << "Try 'kivsim --help'." << Qt::endl;
}

std::optional<Invocation> parseArguments(const QStringList &arguments)
{
    QCommandLineParser parser;
    parser.setApplicationDescription(QStringLiteral(
        "Runs COMMAND in a sandbox laid out like the phone that a device folder describes:\n"
        "its mount table at /etc/mtab, its storages at /kivlocal/download/tambro, /mmc/mmca1\n"
        "and /mmc/megasim1, its preloaded content at /usr/data_resource. The device folder\n"
        "is copied for the run; the original is never changed."));
    parser.setOptionsAfterPositionalArgumentsMode(QCommandLineParser::ParseAsPositionalArguments);
    const QCommandLineOption device(QStringLiteral("device"),
                                    QStringLiteral("The device folder (default: %1).")
                                        .arg(InstallLayout::sampleDevice()),
                                    QStringLiteral("dir"),
                                    InstallLayout::sampleDevice());
    const QCommandLineOption verbose(
        QStringLiteral("verbose"),
        QStringLiteral("Print the host path of the device copy and the bwrap command."));
    const QCommandLineOption keep(QStringLiteral("keep"),
                                  QStringLiteral("Keep the device copy after the run."));
    const QCommandLineOption share(
        QStringLiteral("share"),
        QStringLiteral("Let the command write into this host folder, at the same path inside "
                       "(repeatable)."),
        QStringLiteral("dir"));
    const QCommandLineOption host(
        QStringLiteral("host"),
        QStringLiteral("Lay out the phone over this machine instead: its own services and buses, a "
                       "folder of the user's as the phone memory, the card that UDisks2 has "
                       "mounted, the preloaded content of the device folder. Files are used in "
                       "place and the command runs as the user, never as root."));
    const QCommandLineOption phone(QStringLiteral("phone"),
                                   QStringLiteral("With --host: the phone memory (default: %1).")
                                       .arg(defaultPhoneFolder()),
                                   QStringLiteral("dir"));
    const QCommandLineOption card(
        QStringLiteral("card"),
        QStringLiteral("With --host: the memory card, instead of the one UDisks2 has mounted."),
        QStringLiteral("dir"));
    parser.addOptions({device, verbose, keep, share, host, phone, card});
    const QCommandLineOption help = parser.addHelpOption();
    parser.addPositionalArgument(QStringLiteral("command"),
                                 QStringLiteral("The command to run, with its arguments."),
                                 QStringLiteral("-- COMMAND [ARG...]"));

    if (!parser.parse(arguments)) {
        reportUsage(parser.errorText());
        return std::nullopt;
    }
    if (parser.isSet(help))
        parser.showHelp(0);
    if (parser.positionalArguments().isEmpty()) {
        reportUsage(QStringLiteral("no command given"));
        return std::nullopt;
    }
    if (!parser.isSet(host) && (parser.isSet(phone) || parser.isSet(card))) {
        reportUsage(QStringLiteral("--phone and --card are for --host"));
        return std::nullopt;
    }
    return Invocation{parser.value(device), parser.positionalArguments(), parser.isSet(verbose),
                      parser.isSet(keep),       parser.values(share),          parser.isSet(host),
                      parser.value(phone),      parser.value(card)};
}

bool isDeviceFolder(const QString &folder)
{
    if (!QFileInfo(folder).isDir()) {
        report(QStringLiteral("no device folder at ") + folder);
        return false;
    }
    if (!QFileInfo(QDir(folder).filePath(QStringLiteral("device.ini"))).isFile()) {
        report(folder + QStringLiteral(" is not a device folder: it has no device.ini"));
        return false;
    }
    return true;
}

SandboxSettings readSettings(const QString &deviceFolder)
{
    const QString path = QDir(deviceFolder).absoluteFilePath(QStringLiteral("device.ini"));
    const KeyFile device = KeyFile::load(path);
    QStringList warnings = device.warnings();
    const SandboxSettings settings = SandboxSettings::from(device, path, warnings);
    for (const QString &warning : std::as_const(warnings))
        report(QStringLiteral("warning: ") + warning);
    return settings;
}

// Only blanks are refused by the settings: a write folder must also keep
// clear of the phone's places, or it would hide them or lift a storage's limit.
bool writeFolderFits(const SandboxSettings &settings)
{
    const QString folder = folderOf(settings.writePath);
    const QString clash =
        folder.isEmpty() ? QString()
                         : PhoneLayout::clashWithPhone(folder, PhoneLayout::fixedPlaces(settings));
    if (clash.isEmpty())
        return true;
    report(QStringLiteral("write_path \"%1\" cannot be used: %2").arg(settings.writePath, clash));
    return false;
}

// Why an entry of the device folder cannot be bound or filled from: the mount
// table must be a file, the others folders, where they are at all.
QString wrongKindOf(const QString &entry, const QString &resolved, bool isMountTable)
{
    const QFileInfo info(resolved);
    if (!info.exists() || info.isDir() == !isMountTable)
        return QString();
    return isMountTable ? QStringLiteral("its mount table \"%1\" is not a file").arg(entry)
                        : QStringLiteral("\"%1\" is not a folder").arg(entry);
}

// The entries the sandbox binds or fills from must lie in the copy: a link to
// the host would let the command write host files through /etc/mtab. The
// mount table is then named by its resolved path. Only the caller can reach
// into the copy, so what is checked here is what is bound.
bool confineDeviceEntries(const QString &copy, SandboxSettings &settings)
{
    for (const QString &entry : PhoneLayout::deviceEntries(settings)) {
        QString error;
        const std::optional<QString> resolved = resolveInside(copy, entry, error);
        if (resolved)
            error = wrongKindOf(entry, *resolved, entry == settings.mountTable);
        if (!error.isEmpty()) {
            report(QStringLiteral("cannot use the device folder: ") + error);
            return false;
        }
        if (entry == settings.mountTable)
            settings.mountTable = QDir(copy).relativeFilePath(*resolved);
    }
    return true;
}

bool prepareCopy(const QString &deviceFolder, DeviceCopy &copy, SandboxSettings &settings)
{
    if (!copy.fill(deviceFolder)) {
        if (endingSignal() != 0)
            return false; // asked to end, not failed
        report(QStringLiteral("cannot copy the device folder: ") + copy.error());
        return false;
    }
    const QString mountTable = settings.mountTable;
    if (!confineDeviceEntries(copy.path(), settings))
        return false;
    if (!ensureMountTable(QDir(copy.path()).filePath(settings.mountTable)))
        report(QStringLiteral("warning: the device folder has no mount table \"%1\"; %2 starts empty")
                   .arg(mountTable, PhoneLayout::mountTable));
    return true;
}

// Opens the journal file, made when missing, as a regular file that is no
// symbolic link; its folder's links are resolved. -1 with why in error.
int openJournal(const QString &path, QString &error)
{
    const QFileInfo file(path);
    if (!QDir().mkpath(file.path())) {
        error = QStringLiteral("cannot create its folder");
        return -1;
    }
    const QString resolved = QFileInfo(file.path()).canonicalFilePath() + u'/' + file.fileName();
    const int fd = ::open(QFile::encodeName(resolved).constData(),
                          O_WRONLY | O_CREAT | O_APPEND | O_NONBLOCK | O_NOFOLLOW | O_CLOEXEC, 0644);
    struct stat info;
    if (fd < 0)
        error = errno == ELOOP ? QStringLiteral("it is a symbolic link")
                               : QString::fromLocal8Bit(std::strerror(errno));
    else if (::fstat(fd, &info) != 0 || !S_ISREG(info.st_mode))
        error = QStringLiteral("not a regular file");
    if (fd >= 0 && !error.isEmpty()) {
        ::close(fd);
        return -1;
    }
    return fd;
}

// The journal of platform calls lands on the host, at the path given: only
// the file is shared, so that the command can write nothing else beside it.
bool shareJournal(BwrapCommand &command)
{
    const QString journal = qEnvironmentVariable("KIVSIM_JOURNAL");
    if (journal.isEmpty())
        return true;
    const QString path = QDir::cleanPath(QFileInfo(journal).absoluteFilePath());
    QString error;
    const int fd = openJournal(path, error);
    if (fd >= 0) {
        error = command.revealHostPath(path, BwrapCommand::Access::ReadWrite, fd);
        ::close(fd);
    }
    if (!error.isEmpty()) {
        report(QStringLiteral("cannot use the journal %1: %2").arg(path, error));
        return false;
    }
    command.setEnvironment(QStringLiteral("KIVSIM_JOURNAL"), path);
    return true;
}

bool canShare(const QStringList &folders)
{
    for (const QString &folder : folders) {
        if (!QFileInfo(folder).isDir()) {
            report(QStringLiteral("cannot share %1: no such folder").arg(folder));
            return false;
        }
    }
    return true;
}

bool shareFolders(BwrapCommand &command, const QStringList &folders)
{
    for (const QString &folder : folders) {
        const QString clash = command.revealHostPath(folder, BwrapCommand::Access::ReadWrite);
        if (!clash.isEmpty()) {
            report(QStringLiteral("cannot share %1: %2").arg(folder, clash));
            return false;
        }
    }
    return true;
}

// The desktop's X11 sockets and the session's runtime folder, so that the
// command can open windows; a runtime folder that cannot be shared, or that
// is not the command's user's, is replaced by one of the sandbox's own.
void shareWindowSystem(BwrapCommand &command)
{
    if (QFileInfo(QStringLiteral("/tmp/.X11-unix")).isDir())
        command.revealHostPath(QStringLiteral("/tmp/.X11-unix"), BwrapCommand::Access::ReadWrite);
    if (command.handsOverToPhoneUser())
        return command.useOwnRuntimeFolder();
    const QString runtimeDir = qEnvironmentVariable("XDG_RUNTIME_DIR");
    QString clash = QStringLiteral("no such folder");
    if (!runtimeDir.isEmpty() && QFileInfo(runtimeDir).isDir())
        clash = command.revealHostPath(runtimeDir, BwrapCommand::Access::ReadWrite);
    if (clash.isEmpty())
        return;
    if (!runtimeDir.isEmpty())
        report(QStringLiteral("warning: XDG_RUNTIME_DIR=%1 is not shared: %2; the command gets a "
                              "runtime folder of its own")
                   .arg(runtimeDir, clash));
    command.useOwnRuntimeFolder();
}

// The library finds its platform by its name on the library path, as a phone
// provides it; the services library too, where the phone has one (the
// library loads it by its bare name).
void provideLibraries(BwrapCommand &command, const SandboxSettings &settings, bool onHost = false)
{
    QStringList folders{onHost ? InstallLayout::hostPlatformFolder() : InstallLayout::simulatorPlatformFolder()};
    if (settings.services && !onHost)
        folders << InstallLayout::simulatorServicesFolder();
    for (const QString &folder : std::as_const(folders))
        command.revealHostPath(folder, BwrapCommand::Access::ReadOnly);
    // Of the caller's, only absolute folders: an empty or relative entry names
    // a folder of wherever a program inside starts, which the command may write.
    for (const QString &inherited : qEnvironmentVariable("LD_LIBRARY_PATH").split(u':')) {
        if (inherited.startsWith(u'/'))
            folders << inherited;
    }
    command.setEnvironment(QStringLiteral("LD_LIBRARY_PATH"), folders.join(u':'));
}

void setUpProcess(BwrapCommand &command, const SandboxSettings &settings,
                  const QStringList &commandLine, bool onHost = false)
{
    command.setEnvironment(QStringLiteral("TAMBRO_DATA_PATH"), settings.dataPath);
    command.setEnvironment(QStringLiteral("KIV_APP_WRITE_PATH"), settings.writePath);
    if (!onHost)
        command.setEnvironment(QStringLiteral("KIVSIM_DEVICE"), PhoneLayout::deviceFile);
    // A writable home of the application's own, where font and other caches
    // may be kept: the host's is read-only inside. On this machine the home
    // stays the user's, for the desktop's settings; only the caches move.
    const QString writeFolder = folderOf(settings.writePath);
    const QString home = writeFolder.isEmpty() ? QStringLiteral("/tmp") : writeFolder;
    if (!onHost)
        command.setEnvironment(QStringLiteral("HOME"), home);
    command.setEnvironment(QStringLiteral("XDG_CACHE_HOME"), home + QStringLiteral("/.cache"));
    command.setWorkingDirectory(QDir::currentPath());
#ifdef KIVSIM_BUILD_DIR_WRITABLE
    // Programs measured for coverage write their counters into the build folder.
    command.revealHostPath(QStringLiteral(KIVSIM_BUILD_DIR), BwrapCommand::Access::ReadWrite);
#endif
    command.revealHostPath(InstallLayout::ownFolder(), BwrapCommand::Access::ReadOnly);
    // The command's folder, or the command alone where its folder is the
    // sandbox's own (a program right in /tmp).
    const QFileInfo program(commandLine.constFirst());
    if (commandLine.constFirst().contains(u'/')
        && !command.revealHostPath(program.absolutePath(), BwrapCommand::Access::ReadOnly).isEmpty())
        command.revealHostPath(program.absoluteFilePath(), BwrapCommand::Access::ReadOnly);
}

// The bus sockets that lie where the sandbox hides the host (/tmp, /run), as
// the session's and the system's addresses name them; abstract ones need nothing.
void shareBuses(BwrapCommand &command)
{
    const QStringList addresses = {
        qEnvironmentVariable("DBUS_SESSION_BUS_ADDRESS"),
        qEnvironmentVariable("DBUS_SYSTEM_BUS_ADDRESS", QStringLiteral("unix:path=/run/dbus/system_bus_socket"))};
    for (const QString &address : addresses) {
        for (const QString &entry : address.split(u';', Qt::SkipEmptyParts)) {
            if (!entry.startsWith(QLatin1String("unix:")))
                continue;
            for (const QString &key : entry.mid(5).split(u',')) {
                if (key.startsWith(QLatin1String("path=")))
                    command.revealHostPath(QUrl::fromPercentEncoding(key.mid(5).toUtf8()),
                                           BwrapCommand::Access::ReadOnly);
            }
        }
    }
}

// The preloaded content and the folder structure are read where they are:
// through a link they could show a host folder that the sandbox hides.
bool dataFolderConfined(const QString &folder)
{
    for (const PhoneLayout::SystemFolder &system : PhoneLayout::systemFolders()) {
        QString error;
        if (!resolveInside(folder, system.contentFolder, error)) {
            report(QStringLiteral("cannot use the device folder: ") + error);
            return false;
        }
    }
    return true;
}

QString phoneFolderOf(const Invocation &invocation)
{
    return invocation.phoneFolder.isEmpty() ? defaultPhoneFolder() : invocation.phoneFolder;
}

// The phone memory as the user, made when it is the default and missing.
QString preparePhoneFolder(const Invocation &invocation)
{
    if (invocation.phoneFolder.isEmpty() && ::geteuid() == 0)
        return QStringLiteral("as root, --host needs --phone: a folder of the user whose files it holds");
    const QString folder = phoneFolderOf(invocation);
    const QString error = becomeOwnerOf(folder);
    if (!error.isEmpty())
        return error;
    if (invocation.phoneFolder.isEmpty() && !QDir().mkpath(folder))
        return QStringLiteral("cannot create the phone folder ") + folder;
    return QString();
}

int runOnHost(const Invocation &invocation)
{
    if (!QFileInfo(InstallLayout::hostPlatformFolder()).isDir()) {
        report(QStringLiteral("this machine's platform is not installed: no folder ") + InstallLayout::hostPlatformFolder());
        return ExitCode::SetupFailed;
    }
    const QString problem = preparePhoneFolder(invocation);
    if (!problem.isEmpty()) {
        report(problem);
        return ExitCode::SetupFailed;
    }
    const HostPhone phone{phoneFolderOf(invocation),
                          invocation.cardFolder.isEmpty() ? KivHost::mountedCardFolder() : invocation.cardFolder,
                          invocation.deviceFolder};
    if (!dataFolderConfined(phone.dataFolder))
        return ExitCode::SetupFailed;
    BwrapCommand command(phone);
    if (!command.storageProblem().isEmpty()) {
        report(command.storageProblem());
        return ExitCode::SetupFailed;
    }
    command.protectFolder(phone.dataFolder);
    if (!shareFolders(command, invocation.shared))
        return ExitCode::Usage;
    shareBuses(command);
    shareWindowSystem(command);
    const SandboxSettings phoneDefaults;
    provideLibraries(command, phoneDefaults, true);
    setUpProcess(command, phoneDefaults, invocation.command, true);
    const QStringList arguments = command.arguments(invocation.command);
    if (invocation.verbose) {
        report(QStringLiteral("phone memory: %1, memory card: %2")
                   .arg(phone.phoneFolder, phone.cardFolder.isEmpty() ? QStringLiteral("none") : phone.cardFolder));
        report(QStringLiteral("bwrap ") + shellQuote(arguments));
    }
    return endingSignal() != 0 ? 128 + endingSignal()
                               : runSandbox(QStringLiteral("bwrap"), arguments, command.descriptors());
}

// As root, the start script hands the command over to the phone's user.
bool canHandOver()
{
    if (::geteuid() != 0 || !QStandardPaths::findExecutable(QStringLiteral("setpriv")).isEmpty())
        return true;
    report(QStringLiteral("cannot run as root without setpriv (util-linux) to hand the command "
                          "over to the phone's user"));
    return false;
}

// Why the sandbox was not set up: a signal that asked kivsim to end, or a
// failure already reported.
int setupStopped()
{
    return endingSignal() != 0 ? 128 + endingSignal() : int(ExitCode::SetupFailed);
}

} // namespace

int main(int argc, char *argv[])
{
    // From the very start, so that a signal never leaves a copy behind.
    catchEndingSignals();
    QCoreApplication app(argc, argv);
    QCoreApplication::setApplicationName(QStringLiteral("kivsim"));

    const std::optional<Invocation> invocation = parseArguments(app.arguments());
    if (!invocation || !isDeviceFolder(invocation->deviceFolder) || !canShare(invocation->shared))
        return ExitCode::Usage;
    if (invocation->host)
        return runOnHost(*invocation);
    SandboxSettings settings = readSettings(invocation->deviceFolder);
    if (!writeFolderFits(settings) || !canHandOver())
        return ExitCode::SetupFailed;

    removeOrphanedCopies();
    DeviceCopy copy;
    if (copy.path().isEmpty()) {
        report(QStringLiteral("cannot create a temporary folder: ") + copy.error());
        return ExitCode::SetupFailed;
    }
    if (invocation->keep)
        copy.keep();
    if (!prepareCopy(invocation->deviceFolder, copy, settings))
        return setupStopped();

    BwrapCommand command(copy.path(), settings);
    command.protectFolder(invocation->deviceFolder);
    if (!shareFolders(command, invocation->shared))
        return ExitCode::Usage;
    if (!shareJournal(command))
        return ExitCode::SetupFailed;
    shareWindowSystem(command);
    provideLibraries(command, settings);
    setUpProcess(command, settings, invocation->command);

    const QStringList arguments = command.arguments(invocation->command);
    if (invocation->verbose || invocation->keep)
        report(QStringLiteral("device copy: %1 (%2 inside)").arg(copy.path(), PhoneLayout::deviceFolder));
    if (invocation->verbose)
        report(QStringLiteral("bwrap ") + shellQuote(arguments));
    if (endingSignal() != 0)
        return setupStopped();
    return runSandbox(QStringLiteral("bwrap"), arguments, command.descriptors());
}
