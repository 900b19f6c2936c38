#include "scenarios.h"

#include <QApplication>
#include <QProcess>
#include <QTest>

namespace Scenarios {

namespace {

// Every test function, and every row of a data-driven one, as QTest names
// them: "function" or "function:row". QTest lists them itself.
QStringList scenariosOf(const QString &program)
{
    QProcess list;
    list.start(program, {"-datatags"});
    list.waitForFinished(-1);
    QStringList scenarios;
    for (const QString &line : QString::fromUtf8(list.readAllStandardOutput()).split(u'\n', Qt::SkipEmptyParts)) {
        const QString functionAndRow = line.section(u' ', 1); // after the class name
        const qsizetype space = functionAndRow.indexOf(u' ');
        scenarios << (space < 0 ? functionAndRow : functionAndRow.left(space) + u':' + functionAndRow.mid(space + 1));
    }
    return scenarios;
}

// kivsim --device DEVICE -- [sh -c ...] env [-u NAME] [NAME=value] PROGRAM SCENARIO
bool runOnItsPhone(const QString &program, const QString &scenario, const Setup &setup)
{
    QStringList command = {"--device", setup.device.isEmpty() ? KIVTAMBRO_BARE_DEVICE : setup.device, "--"};
    // The runner's library path goes before the simulated phone's that kivsim
    // sets, so that it chooses the platform as for any other test; only its
    // absolute folders, as kivsim takes them.
    QStringList ownPath = qEnvironmentVariable("LD_LIBRARY_PATH").split(u':');
    ownPath.removeIf([](const QString &folder) { return !folder.startsWith(u'/'); });
    if (!ownPath.isEmpty())
        command << "sh" << "-c" << R"(export LD_LIBRARY_PATH="$0:$LD_LIBRARY_PATH"; exec "$@")" << ownPath.join(u':');
    command << "env";
    for (const QString &setting : setup.environment)
        command << (setting.startsWith(u'-') ? QStringList{"-u", setting.mid(1)} : QStringList{setting});
    QProcess process;
    process.setProcessChannelMode(QProcess::ForwardedChannels);
    process.start(KIVSIM_PATH, command << program << scenario);
    return process.waitForFinished(-1) && process.exitStatus() == QProcess::NormalExit && process.exitCode() == 0;
}

} // namespace

int run(QObject &test, int argc, char **argv, const QHash<QString, Setup> &setups, const QString &defaultDevice)
{
    // Widgets, offscreen: a scenario may show a notice.
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication app(argc, argv);
    QStringList only; // "--only NAME...": these functions' or rows' scenarios
    if (argc > 1 && qstrcmp(argv[1], "--only") == 0) {
        for (int i = 2; i < argc; ++i)
            only << QString::fromLocal8Bit(argv[i]);
    } else if (argc > 1) {
        return QTest::qExec(&test, argc, argv);
    }
    const QString program = QCoreApplication::applicationFilePath();
    const QStringList scenarios = scenariosOf(program);
    QStringList functions;
    for (const QString &scenario : scenarios)
        functions << scenario.section(u':', 0, 0);
    for (const QString &name : setups.keys() + only) {
        if (!functions.contains(name) && !scenarios.contains(name))
            qFatal("a setup or --only names no test function or row: %s", qPrintable(name));
    }
    QStringList failed;
    for (const QString &scenario : scenarios) {
        if (!only.isEmpty() && !only.contains(scenario) && !only.contains(scenario.section(u':', 0, 0)))
            continue;
        Setup setup = setups.value(scenario, setups.value(scenario.section(u':', 0, 0)));
        if (setup.device.isEmpty())
            setup.device = defaultDevice;
        if (!runOnItsPhone(program, scenario, setup))
            failed << scenario;
    }
    if (!failed.isEmpty())
        qWarning("Failed scenarios: %s", qPrintable(failed.join(", ")));
    return int(failed.size());
}

} // namespace Scenarios
