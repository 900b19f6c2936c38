// Writing the tool's results. Every write and close is checked, so that a
// full disk or /dev/full never passes for success.
#pragma once

#include <QByteArray>
#include <QString>
#include <QTextStream>

// Flushes what was written to out (on standard output) and closes standard
// output. False, with why in error, when any of it was lost.
bool finishStandardOutput(QTextStream &out, QString &error);

// Says what failed on standard error, escaped as every line of the tool is,
// and gives the exit status of a failure.
int reportFailure(const QString &message);
// The same for a message about a name from disk: %1 in the message is the
// name, shown from its bytes, so that names that are not UTF-8 stay apart.
int reportFailure(const QString &message, const QByteArray &name);

// Writes the data to the file whole, or leaves the file as it was. False,
// with why in error, when it could not.
bool writeWholeFile(const QString &path, const QByteArray &data, QString &error);
