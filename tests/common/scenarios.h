// Tests of the library's process-wide state: each test function, and each row
// of a data-driven one, is a scenario run in a process and on a simulated phone
// of its own. Without arguments the program starts itself inside kivsim once
// per scenario QTest lists, so none can be left out ("--only NAME..." limits
// them to those functions or rows); with a function's name it runs that
// function like any QTest program.
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

// Setups are by "function" or "function:row"; a scenario without one runs on
// the default device (the bare phone when empty).
int run(QObject &test, int argc, char **argv, const QHash<QString, Setup> &setups = {},
        const QString &defaultDevice = QString());

} // namespace Scenarios

#define KIVTAMBRO_SCENARIO_MAIN(TestObject, ...)                                                  \
    int main(int argc, char **argv)                                                               \
    {                                                                                             \
        TestObject test;                                                                          \
        return Scenarios::run(test, argc, argv, ##__VA_ARGS__);                                   \
    }
