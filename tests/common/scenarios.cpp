#include "scenarios.h"

#include <QCoreApplication>
#include <QMetaMethod>
#include <QProcess>
#include <QTest>

namespace Scenarios {

namespace {

// The test functions: private slots without arguments, fixtures and data functions aside.
QStringList scenariosOf(const QObject &test)
{
    static const QStringList fixtures = {"initTestCase", "cleanupTestCase", "init", "cleanup"};
    QStringList names;
    const QMetaObject *meta = test.metaObject();
    for (int i = meta->methodOffset(); i < meta->methodCount(); ++i) {
        const QMetaMethod method = meta->method(i);
        const QString name = QString::fromLatin1(method.name());
        if (method.methodType() == QMetaMethod::Slot && method.access() == QMetaMethod::Private
            && method.parameterCount() == 0 && !fixtures.contains(name) && !name.endsWith("_data"))
            names << name;
    }
    return names;
}

// kivsim --device DEVICE -- env [-u NAME] [NAME=value] PROGRAM SCENARIO
bool runOnItsPhone(const QString &program, const QString &scenario, const Setup &setup)
{
    QStringList command = {"--device", setup.device.isEmpty() ? KIVTAMBRO_BARE_DEVICE : setup.device, "--", "env"};
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
    QCoreApplication app(argc, argv);
    if (argc > 1)
        return QTest::qExec(&test, argc, argv);
    const QStringList scenarios = scenariosOf(test);
    for (auto it = setups.cbegin(); it != setups.cend(); ++it) {
        if (!scenarios.contains(it.key()))
            qFatal("a setup names no scenario: %s", qPrintable(it.key()));
    }
    QStringList failed;
    for (const QString &scenario : scenarios) {
        Setup setup = setups.value(scenario);
        if (setup.device.isEmpty())
            setup.device = defaultDevice;
        if (!runOnItsPhone(QCoreApplication::applicationFilePath(), scenario, setup))
            failed << scenario;
    }
    if (!failed.isEmpty())
        qWarning("Failed scenarios: %s", qPrintable(failed.join(", ")));
    return int(failed.size());
}

} // namespace Scenarios
