// tambro: asks the file manager's base library about the phone it runs on.
#include "folders_command.h"
#include "ls_command.h"
#include "output.h"
#include "request.h"
#include "storage_command.h"
#include "type_command.h"

#include <QCommandLineParser>
#include <QGuiApplication>
#include <QTextStream>

#include <climits>
#include <cstdio>
#include <map>

namespace {

constexpr int UsageError = 2;

const char Usage[] = "Usage: tambro COMMAND [OPTIONS] [ARGUMENTS]\n"
                     "\n"
                     "Commands:\n"
                     "  storage          the storage partitions: phone memory, MegaSIM, memory card\n"
                     "  folders          the fixed folder structure: key words and their folders,\n"
                     "                   the default folder, preloaded folders and their files\n"
                     "  type NAME...     each name's file types and its big and small icons\n"
                     "  ls [FOLDER]      a folder as the file manager lists it: folders first,\n"
                     "                   then files, each with its icons (default: the root)\n"
                     "\n"
                     "Options:\n"
                     "  --json           print JSON instead of a table\n"
                     "  --png FILE       ls: draw the listing as the phone shows it into FILE\n"
                     "  -h, --help       print this help\n";

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
    bool draws; // takes --png
};

const std::map<QString, Command> Commands = {
    {QStringLiteral("storage"), {runStorageCommand, 0, 0, false}},
    {QStringLiteral("folders"), {runFoldersCommand, 0, 0, false}},
    {QStringLiteral("type"), {runTypeCommand, 1, INT_MAX, false}},
    {QStringLiteral("ls"), {runLsCommand, 0, 1, true}},
};

int usageError(const QString &why)
{
    QTextStream err(stderr);
    err << "tambro: " << why << "\n\n" << Usage;
    return UsageError;
}

// Why the request does not fit the command; empty when it does.
QString misuse(const QString &name, const Command &command, const Request &request)
{
    const int count = int(request.arguments.size());
    if (count > command.maxArguments)
        return QStringLiteral("unexpected argument '%1'").arg(request.arguments.at(command.maxArguments));
    if (count < command.minArguments)
        return QStringLiteral("'%1' needs an argument").arg(name);
    if (request.arguments.contains(QString()))
        return QStringLiteral("an empty argument names nothing");
    if (!request.png.isNull() && !command.draws)
        return QStringLiteral("'%1' does not draw: --png is for ls").arg(name);
    if (!request.png.isNull() && request.json)
        return QStringLiteral("--png and --json do not go together");
    return QString();
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
    const QCommandLineOption help(QStringList{QStringLiteral("h"), QStringLiteral("help")});
    parser.addOption(json);
    parser.addOption(png);
    parser.addOption(help);
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
    const Request request{words.mid(1), parser.isSet(json),
                          parser.isSet(png) ? parser.value(png) : QString()};
    const QString why = misuse(command->first, command->second, request);
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
    QGuiApplication app(qtArgc, argv);

    QTextStream out(stdout);
    const int status = run(arguments, out);
    QString error;
    if (!finishStandardOutput(out, error)) {
        QTextStream(stderr) << "tambro: cannot write the output: " << error << '\n';
        return status == 0 ? 1 : status;
    }
    return status;
}
