#include "sandboxrunner.h"

#include "exitcodes.h"

#include <QFile>
#include <QProcess>
#include <QTextStream>

#include <cerrno>
#include <csignal>
#include <cstring>
#include <fcntl.h>
#include <unistd.h>

namespace {

const int forwardedSignals[] = {SIGHUP, SIGINT, SIGQUIT, SIGTERM};

volatile sig_atomic_t bwrapPid = 0;
volatile sig_atomic_t pendingSignal = 0;

void forwardSignal(int signal)
{
    if (bwrapPid > 0)
        ::kill(pid_t(bwrapPid), signal);
    else
        pendingSignal = signal;
}

// Signals meant for kivsim go to bwrap, whose death ends the command too
// (--die-with-parent); kivsim itself lives on to remove the device copy.
class SignalForwarding
{
public:
    SignalForwarding()
    {
        struct sigaction action = {};
        action.sa_handler = forwardSignal;
        sigemptyset(&action.sa_mask);
        for (size_t i = 0; i < std::size(forwardedSignals); ++i)
            sigaction(forwardedSignals[i], &action, &m_previous[i]);
    }
    ~SignalForwarding()
    {
        for (size_t i = 0; i < std::size(forwardedSignals); ++i)
            sigaction(forwardedSignals[i], &m_previous[i], nullptr);
        bwrapPid = 0;
        pendingSignal = 0;
    }
    SignalForwarding(const SignalForwarding &) = delete;
    SignalForwarding &operator=(const SignalForwarding &) = delete;

    // A signal that came before bwrap was running is passed on now.
    void setTarget(pid_t pid)
    {
        bwrapPid = pid;
        if (pendingSignal != 0)
            ::kill(pid, pendingSignal);
    }

private:
    struct sigaction m_previous[std::size(forwardedSignals)];
};

// bwrap reports on this pipe once the command has been started; without that
// report its exit status is its own failure, not the command's.
class StatusPipe
{
public:
    StatusPipe()
    {
        if (::pipe2(m_fds, O_CLOEXEC) == 0)
            ::fcntl(m_fds[1], F_SETFD, 0); // the write end goes to bwrap
    }
    ~StatusPipe()
    {
        closeWriteEnd();
        if (m_fds[0] >= 0)
            ::close(m_fds[0]);
    }
    StatusPipe(const StatusPipe &) = delete;
    StatusPipe &operator=(const StatusPipe &) = delete;

    bool isValid() const { return m_fds[0] >= 0; }
    int writeEnd() const { return m_fds[1]; }
    void closeWriteEnd()
    {
        if (m_fds[1] >= 0)
            ::close(m_fds[1]);
        m_fds[1] = -1;
    }
    bool commandStarted()
    {
        closeWriteEnd();
        QFile status;
        if (!status.open(m_fds[0], QIODevice::ReadOnly, QFileDevice::DontCloseHandle))
            return false;
        return status.readAll().contains("\"child-pid\"");
    }

private:
    int m_fds[2] = {-1, -1};
};

int setupFailed(const QString &why)
{
    QTextStream(stderr) << "kivsim: " << why << Qt::endl;
    return ExitCode::SetupFailed;
}

} // namespace

int runSandbox(const QString &bwrap, const QStringList &arguments)
{
    StatusPipe status;
    if (!status.isValid())
        return setupFailed(QStringLiteral("cannot create a pipe: %1")
                               .arg(QString::fromLocal8Bit(::strerror(errno))));

    SignalForwarding forwarding;
    QProcess process;
    process.setProcessChannelMode(QProcess::ForwardedChannels);
    process.setInputChannelMode(QProcess::ForwardedInputChannel);
    process.start(bwrap,
                  QStringList{QStringLiteral("--json-status-fd"),
                              QString::number(status.writeEnd())}
                      + arguments);
    if (!process.waitForStarted(-1))
        return setupFailed(QStringLiteral("cannot run %1: %2 (is bubblewrap installed?)")
                               .arg(bwrap, process.errorString()));
    status.closeWriteEnd();
    forwarding.setTarget(pid_t(process.processId()));
    process.waitForFinished(-1);
    if (!status.commandStarted())
        return setupFailed(QStringLiteral("bwrap could not set up the sandbox"));
    // On a crash exit QProcess keeps the number of the signal as the exit code.
    if (process.exitStatus() == QProcess::CrashExit)
        return 128 + process.exitCode();
    return process.exitCode();
}
