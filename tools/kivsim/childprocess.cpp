#include "childprocess.h"

#include <csignal>
#include <iterator>
#include <unistd.h>

namespace {

const int endingSignals[] = {SIGHUP, SIGINT, SIGQUIT, SIGTERM};

volatile sig_atomic_t childPid = 0;
volatile sig_atomic_t caughtSignal = 0;

void passOn(int signal)
{
    caughtSignal = signal;
    if (childPid > 0)
        ::kill(pid_t(childPid), signal);
}

} // namespace

void catchEndingSignals()
{
    struct sigaction action = {};
    action.sa_handler = passOn;
    sigemptyset(&action.sa_mask);
    for (const int signal : endingSignals)
        sigaction(signal, &action, nullptr);
}

int endingSignal()
{
    return caughtSignal;
}

bool runChild(QProcess &process, const QString &program, const QStringList &arguments,
              OnSignal onSignal)
{
    process.start(program, arguments);
    if (!process.waitForStarted(-1))
        return false;
    if (onSignal == OnSignal::Finish)
        return process.waitForFinished(-1), true;
    childPid = sig_atomic_t(process.processId());
    if (caughtSignal != 0) // came before the child could be told
        ::kill(pid_t(childPid), caughtSignal);
    process.waitForFinished(-1);
    childPid = 0;
    return true;
}
