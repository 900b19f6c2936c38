// kivsim's children (the copy tools and bwrap) and the signals that end
// kivsim: a signal is passed on to the child that runs, and kivsim lives on
// to remove its device copy.
#pragma once

#include <QProcess>
#include <QString>
#include <QStringList>

// Catches the signals that end a program (SIGHUP, SIGINT, SIGQUIT, SIGTERM)
// from now on, for the rest of kivsim's life. Call first thing.
void catchEndingSignals();
// The signal that asked kivsim to end, or 0.
int endingSignal();

// Starts process with program and arguments and waits for it. A caught
// signal is passed on to it, also one that came before it started, unless it
// is to finish whatever comes (the removal of the device copy). False when it
// could not be started.
enum class OnSignal { Stop, Finish };
bool runChild(QProcess &process, const QString &program, const QStringList &arguments,
              OnSignal onSignal = OnSignal::Stop);
