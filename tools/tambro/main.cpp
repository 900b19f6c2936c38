// tambro: asks the file manager's base library about the phone it runs on.
#include "folders_command.h"
#include "storage_command.h"

#include <QCommandLineParser>
#include <QGuiApplication>
#include <QTextStream>

#include <cstdio>
#include <map>

namespace {

constexpr int UsageError = 2;

const char Usage[] = "Usage: tambro COMMAND [OPTIONS]\n"
                     "\n"
                     "Commands:\n"
                     "  storage        the storage partitions: phone memory, MegaSIM, memory card\n"
                     "  folders        the fixed folder structure: key words and their folders,\n"
                     "                 the default folder, preloaded folders and their files\n"
                     "\n"
                     "Options:\n"
                     "  --json         print JSON instead of a table\n"
                     "  -h, --help     print this help\n";

// Without a display the tool still needs an application object for pixmaps
// and translations: run it on the offscreen platform then.
void chooseOffscreenWithoutDisplay()
{
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM") && qEnvironmentVariableIsEmpty("DISPLAY")
        && qEnvironmentVariableIsEmpty("WAYLAND_DISPLAY"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
}

const std::map<QString, int (*)(QTextStream &, bool)> Commands = {
    {QStringLiteral("storage"), runStorageCommand},
    {QStringLiteral("folders"), runFoldersCommand},
};

int usageError(const QString &why)
{
    QTextStream err(stderr);
    err << "tambro: " << why << "\n\n" << Usage;
    return UsageError;
}

} // namespace

int main(int argc, char *argv[])
{
    chooseOffscreenWithoutDisplay();
    QGuiApplication app(argc, argv);

    QCommandLineParser parser;
    const QCommandLineOption json(QStringLiteral("json"));
    const QCommandLineOption help(QStringList{QStringLiteral("h"), QStringLiteral("help")});
    parser.addOption(json);
    parser.addOption(help);
    if (!parser.parse(app.arguments()))
        return usageError(parser.errorText());

    QTextStream out(stdout);
    const QStringList words = parser.positionalArguments();
    if (parser.isSet(help) || words.isEmpty()) {
        out << Usage;
        return 0;
    }
    const auto command = Commands.find(words.first());
    if (command == Commands.end())
        return usageError(QStringLiteral("unknown command '%1'").arg(words.first()));
    if (words.size() > 1)
        return usageError(QStringLiteral("unexpected argument '%1'").arg(words.at(1)));
    return command->second(out, parser.isSet(json));
}
