// kivsim: runs a command in a sandbox laid out like the phone that a device
// folder describes (see docs/devices.md).

#include "bwrapcommand.h"
#include "devicecopy.h"
#include "exitcodes.h"
#include "phonelayout.h"
#include "sandboxrunner.h"
#include "sandboxsettings.h"
#include "shellquote.h"

#include "simplatform/keyfile.h"

#include <QCommandLineParser>
#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>
#include <QTemporaryDir>
#include <QTextStream>

#include <optional>

namespace {

struct Invocation
{
    QString deviceFolder;
    QStringList command;
    bool verbose = false;
    bool keep = false;
    QStringList shared; // host folders the command may write
};

QTextStream &err()
{
    static QTextStream stream(stderr);
    return stream;
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
                                        .arg(QStringLiteral(KIVSIM_DEFAULT_DEVICE)),
                                    QStringLiteral("dir"),
                                    QStringLiteral(KIVSIM_DEFAULT_DEVICE));
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
    parser.addOptions({device, verbose, keep, share});
    const QCommandLineOption help = parser.addHelpOption();
    parser.addPositionalArgument(QStringLiteral("command"),
                                 QStringLiteral("The command to run, with its arguments."),
                                 QStringLiteral("-- COMMAND [ARG...]"));

    if (!parser.parse(arguments)) {
        err() << "kivsim: " << parser.errorText() << "\nTry 'kivsim --help'." << Qt::endl;
        return std::nullopt;
    }
    if (parser.isSet(help))
        parser.showHelp(0);
    if (parser.positionalArguments().isEmpty()) {
        err() << "kivsim: no command given\nTry 'kivsim --help'." << Qt::endl;
        return std::nullopt;
    }
    return Invocation{parser.value(device), parser.positionalArguments(), parser.isSet(verbose),
                      parser.isSet(keep), parser.values(share)};
}

bool isDeviceFolder(const QString &folder)
{
    if (!QFileInfo(folder).isDir()) {
        err() << "kivsim: no device folder at " << folder << Qt::endl;
        return false;
    }
    if (!QFileInfo(QDir(folder).filePath(QStringLiteral("device.ini"))).isFile()) {
        err() << "kivsim: " << folder << " is not a device folder: it has no device.ini"
              << Qt::endl;
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
        err() << "kivsim: warning: " << warning << Qt::endl;
    return settings;
}

bool prepareCopy(const QString &deviceFolder, const QString &copy,
                 const SandboxSettings &settings)
{
    QString error;
    if (!copyDeviceFolder(deviceFolder, copy, error)) {
        err() << "kivsim: cannot copy the device folder: " << error << Qt::endl;
        return false;
    }
    if (!ensureMountTable(copy, settings.mountTable))
        err() << "kivsim: warning: the device folder has no mount table \"" << settings.mountTable
              << "\"; " << PhoneLayout::mountTable << " starts empty" << Qt::endl;
    return true;
}

// The journal of platform calls lands on the host: its folder is shared.
bool shareJournal(BwrapCommand &command)
{
    const QString journal = qEnvironmentVariable("KIVSIM_JOURNAL");
    if (journal.isEmpty())
        return true;
    const QFileInfo file(journal);
    if (!QDir().mkpath(file.absolutePath())) {
        err() << "kivsim: cannot create the journal's folder " << file.absolutePath() << Qt::endl;
        return false;
    }
    command.revealHostPath(file.absolutePath(), BwrapCommand::Access::ReadWrite);
    command.setEnvironment(QStringLiteral("KIVSIM_JOURNAL"), file.absoluteFilePath());
    return true;
}

bool canShare(const QStringList &folders)
{
    for (const QString &folder : folders) {
        if (!QFileInfo(folder).isDir()) {
            err() << "kivsim: cannot share " << folder << ": no such folder" << Qt::endl;
            return false;
        }
    }
    return true;
}

void shareFolders(BwrapCommand &command, const QStringList &folders)
{
    for (const QString &folder : folders)
        command.revealHostPath(folder, BwrapCommand::Access::ReadWrite);
}

void shareWindowSystem(BwrapCommand &command)
{
    const QString runtimeDir = qEnvironmentVariable("XDG_RUNTIME_DIR");
    for (const QString &path : {QStringLiteral("/tmp/.X11-unix"), runtimeDir}) {
        if (!path.isEmpty() && QFileInfo(path).isDir())
            command.revealHostPath(path, BwrapCommand::Access::ReadWrite);
    }
}

void setUpProcess(BwrapCommand &command, const SandboxSettings &settings,
                  const QStringList &commandLine)
{
    command.setEnvironment(QStringLiteral("TAMBRO_DATA_PATH"), settings.dataPath);
    command.setEnvironment(QStringLiteral("KIV_APP_WRITE_PATH"), settings.writePath);
    command.setEnvironment(QStringLiteral("KIVSIM_DEVICE"), PhoneLayout::deviceFile);
    command.setWorkingDirectory(QDir::currentPath());
    command.revealHostPath(QStringLiteral(KIVSIM_BUILD_DIR), BwrapCommand::Access::ReadOnly);
    if (commandLine.constFirst().contains(u'/'))
        command.revealHostPath(QFileInfo(commandLine.constFirst()).absolutePath(),
                               BwrapCommand::Access::ReadOnly);
}

} // namespace

int main(int argc, char *argv[])
{
    QCoreApplication app(argc, argv);
    QCoreApplication::setApplicationName(QStringLiteral("kivsim"));

    const std::optional<Invocation> invocation = parseArguments(app.arguments());
    if (!invocation || !isDeviceFolder(invocation->deviceFolder) || !canShare(invocation->shared))
        return ExitCode::Usage;
    const SandboxSettings settings = readSettings(invocation->deviceFolder);

    QTemporaryDir copy(QDir::tempPath() + QStringLiteral("/kivsim-device-XXXXXX"));
    if (!copy.isValid()) {
        err() << "kivsim: cannot create a temporary folder: " << copy.errorString() << Qt::endl;
        return ExitCode::SetupFailed;
    }
    copy.setAutoRemove(!invocation->keep);
    if (!prepareCopy(invocation->deviceFolder, copy.path(), settings))
        return ExitCode::SetupFailed;

    BwrapCommand command(copy.path(), settings);
    if (!shareJournal(command))
        return ExitCode::SetupFailed;
    shareFolders(command, invocation->shared);
    shareWindowSystem(command);
    setUpProcess(command, settings, invocation->command);

    const QStringList arguments = command.arguments(invocation->command);
    if (invocation->verbose || invocation->keep)
        err() << "kivsim: device copy: " << copy.path() << " (" << PhoneLayout::deviceFolder
              << " inside)" << Qt::endl;
    if (invocation->verbose)
        err() << "kivsim: bwrap " << shellQuote(arguments) << Qt::endl;
    return runSandbox(QStringLiteral("bwrap"), arguments);
}
