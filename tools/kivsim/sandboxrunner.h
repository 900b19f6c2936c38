// Running bwrap and telling the command's exit status from bwrap's own failure.
#pragma once

#include <QString>
#include <QStringList>

// The descriptor on which the sandbox's start script reports that the command
// is about to start: a shell redirects only descriptors 0 to 9.
constexpr int CommandStartedFd = 9;

// Runs bwrap with the arguments and waits for it, passing on the signals that
// end a program. Returns the command's exit status (128 + signal number when a
// signal ended it), or ExitCode::SetupFailed with a message on stderr when
// bwrap could not be started or could not set up the sandbox (its own reason
// is on stderr then). The descriptors are bwrap's to inherit, which closes
// them before the command starts.
int runSandbox(const QString &bwrap, const QStringList &arguments, const QList<int> &descriptors);
