#include "scenarios.h"

#include <QCoreApplication>
#include <QMetaMethod>
#include <QProcess>
#include <QTest>

namespace Scenarios {

namespace {

bool isScenario(const QMetaMethod &method)
{
    static const QStringList fixtures = {QStringLiteral("initTestCase"),
                                         QStringLiteral("cleanupTestCase"), QStringLiteral("init"),
                                         QStringLiteral("cleanup")};
    const QString name = QString::fromLatin1(method.name());
    return method.methodType() == QMetaMethod::Slot && method.access() == QMetaMethod::Private
        && method.parameterCount() == 0 && !fixtures.contains(name)
        && !name.endsWith(QLatin1String("_data"));
}

QStringList scenariosOf(const QObject &test)
{
    QStringList names;
    const QMetaObject *meta = test.metaObject();
    for (int i = meta->methodOffset(); i < meta->methodCount(); ++i) {
        if (isScenario(meta->method(i)))
            names << QString::fromLatin1(meta->method(i).name());
    }
    return names;
}

// kivsim --device DEVICE -- env [-u NAME] [NAME=value] PROGRAM SCENARIO
QStringList commandFor(const QString &program, const QString &scenario, const Setup &setup)
{
    QStringList command = {QStringLiteral("--device"),
                           setup.device.isEmpty() ? QStringLiteral(KIVTAMBRO_BARE_DEVICE)
                                                  : setup.device,
                           QStringLiteral("--"), QStringLiteral("env")};
    for (const QString &setting : setup.environment) {
        if (setting.startsWith(u'-'))
            command << QStringLiteral("-u") << setting.mid(1);
        else
            command << setting;
    }
    return command << program << scenario;
}

int runEach(const QString &program, const QStringList &scenarios,
            const QHash<QString, Setup> &setups, const QString &defaultDevice)
{
    QStringList failed;
    for (const QString &scenario : scenarios) {
        Setup setup = setups.value(scenario);
        if (setup.device.isEmpty())
            setup.device = defaultDevice;
        QProcess process;
        process.setProcessChannelMode(QProcess::ForwardedChannels);
        process.start(QStringLiteral(KIVSIM_PATH), commandFor(program, scenario, setup));
        if (!process.waitForFinished(-1) || process.exitStatus() != QProcess::NormalExit
            || process.exitCode() != 0)
            failed << scenario;
    }
    if (!failed.isEmpty())
        qWarning("Failed scenarios: %s", qPrintable(failed.join(QStringLiteral(", "))));
    return int(failed.size());
}

} // namespace

int run(QObject &test, int argc, char **argv, const QHash<QString, Setup> &setups,
        const QString &defaultDevice)
{
    QCoreApplication app(argc, argv);
    if (argc > 1)
        return QTest::qExec(&test, argc, argv);
    const QStringList scenarios = scenariosOf(test);
    for (auto it = setups.cbegin(); it != setups.cend(); ++it) {
        if (!scenarios.contains(it.key()))
            qFatal("a setup names no scenario: %s", qPrintable(it.key()));
    }
    return runEach(QCoreApplication::applicationFilePath(), scenarios, setups, defaultDevice);
}

} // namespace Scenarios
