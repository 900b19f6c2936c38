// tambro: asks the file manager's base library about the phone it runs on.
#include "du_command.h"
#include "folders_command.h"
#include "format_command.h"
#include "ls_command.h"
#include "name_command.h"
#include "open_command.h"
#include "output.h"
#include "path_command.h"
#include "request.h"
#include "storage_command.h"
#include "type_command.h"

#include "printable/printable_text.h"

#include <QCommandLineParser>
#include <QApplication>
#include <QTextStream>

#include <climits>
#include <cstdio>
#include <map>

namespace {

// A failure is 1 (reportFailure); the manual page tells both (tambro.h2m).
constexpr int UsageError = 2;

const char Usage[] = "Usage: tambro COMMAND [OPTIONS] [ARGUMENTS]\n"
                     "\n"
                     "Commands:\n"
                     "  storage            the storage partitions: phone memory, MegaSIM, memory card\n"
                     "  folders            the fixed folder structure: key words and their folders,\n"
                     "                     the default folder, preloaded folders and their files\n"
                     "  type NAME...       each name's file types and its big and small icons\n"
                     "  ls [FOLDER]        a folder as the phone's list view shows it, under its\n"
                     "                     location line: fixed subfolders in their order (at the\n"
                     "                     root then the card and the MegaSIM), other folders, then\n"
                     "                     files, each with its icons (default: the root)\n"
                     "  name TEXT...       types each text into the file name field one keystroke at\n"
                     "                     a time: the keystrokes refused and the name that results\n"
                     "  recipient TEXT...  whether each text could be a phone number, an e-mail\n"
                     "                     address, both or neither\n"
                     "  path PATH...       each path's location line, parent, short name, level,\n"
                     "                     partition, fixed subfolders and invisible links\n"
                     "  du PATH...         each path's size, its files and folders (in its whole\n"
                     "                     tree and directly), its storage's free and total space,\n"
                     "                     whether it is read-only; the selection title of them all\n"
                     "  format             writes sizes, dates and durations as the phone does\n"
                     "  open FILE...       opens each file as the file manager does and shows the\n"
                     "                     requests that reached the phone's applications\n"
                     "  settings           the settings file, its sort order, the feature switches\n"
                     "\n"
                     "Options:\n"
                     "  --json             print JSON instead of a table\n"
                     "  --png FILE         ls: draw the listing as the phone shows it into FILE\n"
                     "  --filter PATTERN   ls: only the files of the pattern's extension (\"*.mp3\")\n"
                     "  --filter-list P1,P2,...\n"
                     "                     ls: only the files of the patterns' extensions\n"
                     "  --ringtones        ls: only the files that may serve as ring tones\n"
                     "  --type TYPE        open: the type the file is opened as (default: its\n"
                     "                     extension in lower case)\n"
                     "  --normal           open: pictures in the viewer's normal view, not its\n"
                     "                     preview\n"
                     "  --install-arg N    open: the number handed to the Java installer (default 0)\n"
                     "  --size N           format: a size in bytes (as often as wanted)\n"
                     "  --decimals D       format: the sizes with D decimals, 0 to 99 (default: as\n"
                     "                     the details view, 1)\n"
                     "  --date ISO         format: a date and time, such as 2007-03-05T09:04:00\n"
                     "  --duration MS      format: a duration in milliseconds\n"
                     "  -h, --help         print this help\n";

// Without a display the tool still needs an application object for pixmaps
// and translations: run it on the offscreen platform then.
void chooseOffscreenWithoutDisplay()
{
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM") && qEnvironmentVariableIsEmpty("DISPLAY")
        && qEnvironmentVariableIsEmpty("WAYLAND_DISPLAY"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
}

struct Command
{
    int (*run)(QTextStream &out, const Request &request);
    int minArguments;
    int maxArguments;
    QStringList options; // the command's own options
    QString (*checkValues)(const Request &request) = nullptr; // why its values do not parse
};

const std::map<QString, Command> Commands = {
    {QStringLiteral("storage"), {runStorageCommand, 0, 0, {}}},
    {QStringLiteral("folders"), {runFoldersCommand, 0, 0, {}}},
    {QStringLiteral("type"), {runTypeCommand, 1, INT_MAX, {}}},
    {QStringLiteral("ls"), {runLsCommand, 0, 1, {"png", "filter", "filter-list", "ringtones"}, lsMisuse}},
    {QStringLiteral("name"), {runNameCommand, 1, INT_MAX, {}}},
    {QStringLiteral("recipient"), {runRecipientCommand, 1, INT_MAX, {}}},
    {QStringLiteral("path"), {runPathCommand, 1, INT_MAX, {}}},
    {QStringLiteral("open"), {runOpenCommand, 1, INT_MAX, {"type", "normal", "install-arg"}}},
    {QStringLiteral("settings"), {runSettingsCommand, 0, 0, {}}},
    {QStringLiteral("du"), {runDuCommand, 1, INT_MAX, {}}},
    {QStringLiteral("format"), {runFormatCommand, 0, 0, {"size", "decimals", "date", "duration"}, formatMisuse}},
};
const QStringList CommandOptions = {"png",  "type",     "normal",   "install-arg", "size",     "decimals",
                                    "date", "duration", "filter", "filter-list", "ringtones"};

int usageError(const QString &why)
{
    QTextStream err(stderr);
    err << "tambro: " << printableText(why) << "\n\n" << Usage;
    return UsageError;
}

// Why the request does not fit the command; empty when it does.
QString misuse(const QString &name, const Command &command, const Request &request,
               const QStringList &optionsGiven)
{
    for (const QString &option : optionsGiven) {
        if (CommandOptions.contains(option) && !command.options.contains(option))
            return QStringLiteral("'%1' does not take --%2").arg(name, option);
    }
    const int count = int(request.arguments.size());
    if (count > command.maxArguments)
        return QStringLiteral("unexpected argument '%1'").arg(request.arguments.at(command.maxArguments));
    if (count < command.minArguments)
        return QStringLiteral("'%1' needs an argument").arg(name);
    if (request.arguments.contains(QString()))
        return QStringLiteral("an empty argument names nothing");
    if (!request.png.isNull() && request.json)
        return QStringLiteral("--png and --json do not go together");
    return command.checkValues ? command.checkValues(request) : QString();
}

// The user's arguments, read before Qt sees any: QGuiApplication would take
// its own options (-platform, -qwindowtitle, ...) out of them, even after
// "--", and a name such as "-platform" must stay a name.
QStringList userArguments(int argc, char *argv[])
{
    QStringList arguments;
    for (int i = 0; i < argc; ++i)
        arguments << QString::fromLocal8Bit(argv[i]);
    return arguments;
}

int run(const QStringList &arguments, QTextStream &out)
{
    QCommandLineParser parser;
    const QCommandLineOption json(QStringLiteral("json"));
    const QCommandLineOption png(QStringLiteral("png"), QString(), QStringLiteral("FILE"));
    const QCommandLineOption type(QStringLiteral("type"), QString(), QStringLiteral("TYPE"));
    const QCommandLineOption normal(QStringLiteral("normal"));
    const QCommandLineOption installArgument(QStringLiteral("install-arg"), QString(), QStringLiteral("N"));
    const QCommandLineOption size(QStringLiteral("size"), QString(), QStringLiteral("N"));
    const QCommandLineOption decimals(QStringLiteral("decimals"), QString(), QStringLiteral("D"));
    const QCommandLineOption date(QStringLiteral("date"), QString(), QStringLiteral("ISO"));
    const QCommandLineOption duration(QStringLiteral("duration"), QString(), QStringLiteral("MS"));
    const QCommandLineOption filter(QStringLiteral("filter"), QString(), QStringLiteral("PATTERN"));
    const QCommandLineOption filterList(QStringLiteral("filter-list"), QString(), QStringLiteral("PATTERNS"));
    const QCommandLineOption ringTones(QStringLiteral("ringtones"));
    const QCommandLineOption help(QStringList{QStringLiteral("h"), QStringLiteral("help")});
    parser.addOptions({json, png, type, normal, installArgument, size, decimals, date, duration, filter, filterList,
                       ringTones, help});
    if (!parser.parse(arguments))
        return usageError(parser.errorText());

    const QStringList words = parser.positionalArguments();
    if (parser.isSet(help)) {
        out << Usage;
        return 0;
    }
    if (words.isEmpty())
        return usageError(QStringLiteral("no command given"));
    const auto command = Commands.find(words.first());
    if (command == Commands.end())
        return usageError(QStringLiteral("unknown command '%1'").arg(words.first()));
    if (parser.isSet(png) && parser.value(png).isEmpty())
        return usageError(QStringLiteral("--png needs a file name"));
    bool isNumber = true;
    const int installNumber = parser.isSet(installArgument) ? parser.value(installArgument).toInt(&isNumber) : 0;
    if (!isNumber)
        return usageError(QStringLiteral("--install-arg needs a number"));
    const Request request{words.mid(1),
                          parser.isSet(json),
                          parser.isSet(png) ? parser.value(png) : QString(),
                          parser.isSet(type) ? parser.value(type) : QString(),
                          parser.isSet(normal),
                          installNumber,
                          {parser.values(size), parser.isSet(decimals) ? parser.value(decimals) : QString(),
                           parser.values(date), parser.values(duration)},
                          parser.isSet(filter) ? parser.value(filter) : QString(),
                          parser.isSet(filterList) ? parser.value(filterList) : QString(),
                          parser.isSet(ringTones)};
    const QString why = misuse(command->first, command->second, request, parser.optionNames());
    if (!why.isEmpty())
        return usageError(why);
    return command->second.run(out, request);
}

} // namespace

int main(int argc, char *argv[])
{
    const QStringList arguments = userArguments(argc, argv);
    chooseOffscreenWithoutDisplay();
    int qtArgc = 1;
    // Widgets: opening a file may show a notice.
    QApplication app(qtArgc, argv);

    QTextStream out(stdout);
    const int status = run(arguments, out);
    QString error;
    if (!finishStandardOutput(out, error)) {
        const int failure = reportFailure(QStringLiteral("cannot write the output: %1").arg(error));
        return status == 0 ? failure : status;
    }
    return status;
}
