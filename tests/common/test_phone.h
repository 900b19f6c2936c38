// The simulated phone under a running test, and its journal of platform calls.
#pragma once

#include <QByteArray>
#include <QList>
#include <QString>

namespace TestPhone {

// Inside kivsim: a fresh journal. Call before the first platform call.
void startJournal();

// Replaces /etc/mtab (inside kivsim only).
void setMountTable(const QByteArray &text);
// Replaces the device file that the simulated platform reads.
void setDevice(const QByteArray &ini);

// The platform calls journalled so far: whole lines, "call" names.
QList<QByteArray> journalLines();
QStringList journalCalls();
// The values of one argument of the calls of one name, in order.
QStringList journalled(const char *call, const char *argument);
// Forgets what was journalled so far.
void clearJournal();

} // namespace TestPhone
