// Tests of the library's process-wide state, which is built once per process:
// each test function, and each row of a data-driven one, is a scenario that
// runs in a process of its own, on a simulated phone of its own.
//
// Run without arguments, the program starts itself once per scenario, each
// inside kivsim, as QTest lists them; so no scenario can be left out of the
// run, as it could from a list kept beside the program. Run with a function's
// name (inside kivsim), it runs that function like any QTest program.
#pragma once

#include <QHash>
#include <QObject>
#include <QStringList>

namespace Scenarios {

// What a scenario needs other than the default phone and environment.
struct Setup
{
    QString device; // the device folder; empty for the bare phone
    QStringList environment; // "NAME=value" to set, "-NAME" to unset
};

// The test's entry point; setups are by function name, or by "function:row"
// for one row of a data-driven function, and a scenario
// without one runs on the default device (the bare phone when empty).
int run(QObject &test, int argc, char **argv, const QHash<QString, Setup> &setups = {},
        const QString &defaultDevice = QString());

} // namespace Scenarios

#define KIVTAMBRO_SCENARIO_MAIN(TestObject, ...)                                                  \
    int main(int argc, char **argv)                                                               \
    {                                                                                             \
        TestObject test;                                                                          \
        return Scenarios::run(test, argc, argv, ##__VA_ARGS__);                                   \
    }
