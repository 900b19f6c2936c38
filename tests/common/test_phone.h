// Changes the simulated phone under a running test, and reads what the
// library asked the platform for. Only meaningful inside a kivsim sandbox.
#pragma once

#include <QByteArray>
#include <QJsonObject>
#include <QList>
#include <QString>

namespace TestPhone {

// Replaces the mount table, /etc/mtab.
void setMountTable(const QByteArray &text);
// Replaces the device file that the simulated platform reads.
void setDevice(const QByteArray &ini);
// Starts a fresh journal of platform calls in a temporary file. Call before
// the first platform call of the process.
void startJournal();
// The platform calls journalled so far, and their "call" names.
QList<QJsonObject> journal();
QStringList journalCalls();
// The journal lines, verbatim.
QList<QByteArray> journalLines();
// Forgets what was journalled so far.
void clearJournal();

} // namespace TestPhone
