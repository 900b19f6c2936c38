// Running bwrap and telling the command's exit status from bwrap's own failure.
#pragma once

#include <QString>
#include <QStringList>

// Runs bwrap with the arguments and waits for it, forwarding the signals that
// end a program. Returns the command's exit status (128 + signal number when
// a signal ended it), or ExitCode::SetupFailed with a message on stderr when
// bwrap could not be started or could not set up the sandbox.
int runSandbox(const QString &bwrap, const QStringList &arguments);
