#include "sandboxrunner.h"

#include "childprocess.h"
#include "exitcodes.h"

#include <QFile>
#include <QProcess>
#include <QTextStream>

#include <cerrno>
#include <cstring>
#include <fcntl.h>
#include <unistd.h>

namespace {

// The start script writes on this pipe just before it starts the command:
// without that word, bwrap's exit status is its own failure, not the
// command's. (bwrap's own status reports a child that has yet to set up
// the sandbox, which can still fail.)
class StartedPipe
{
public:
    StartedPipe()
    {
        if (::pipe2(m_fds, O_CLOEXEC) != 0)
            m_fds[0] = m_fds[1] = -1;
    }
    ~StartedPipe()
    {
        closeWriteEnd();
        if (m_fds[0] >= 0)
            ::close(m_fds[0]);
    }
    StartedPipe(const StartedPipe &) = delete;
    StartedPipe &operator=(const StartedPipe &) = delete;

    bool isValid() const { return m_fds[0] >= 0; }
    // Runs in the child between fork and exec: the write end at the agreed
    // number, without close-on-exec.
    void giveToChild() const
    {
        if (m_fds[1] == CommandStartedFd)
            ::fcntl(CommandStartedFd, F_SETFD, 0);
        else
            ::dup2(m_fds[1], CommandStartedFd);
    }
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
        return status.open(m_fds[0], QIODevice::ReadOnly, QFileDevice::DontCloseHandle)
            && !status.readAll().isEmpty();
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

int runSandbox(const QString &bwrap, const QStringList &arguments, const QList<int> &descriptors)
{
    StartedPipe started;
    if (!started.isValid())
        return setupFailed(QStringLiteral("cannot create a pipe: %1")
                               .arg(QString::fromLocal8Bit(::strerror(errno))));
    QProcess process;
    process.setProcessChannelMode(QProcess::ForwardedChannels);
    process.setInputChannelMode(QProcess::ForwardedInputChannel);
    process.setChildProcessModifier([&started, &descriptors] {
        started.giveToChild();
        for (const int fd : descriptors)
            ::fcntl(fd, F_SETFD, 0);
    });
    if (!runChild(process, bwrap, arguments))
        return setupFailed(QStringLiteral("cannot run %1: %2 (is bubblewrap installed?)")
                               .arg(bwrap, process.errorString()));
    if (!started.commandStarted())
        return setupFailed(QStringLiteral("bwrap could not set up the sandbox"));
    // On a crash exit QProcess keeps the number of the signal as the exit code.
    if (process.exitStatus() == QProcess::CrashExit)
        return 128 + process.exitCode();
    return process.exitCode();
}
