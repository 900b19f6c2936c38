#pragma once

#include "request.h"

#include <QTextStream>

// Opens each file through the library's file handler, in one process, and
// shows what Handle() answered and which requests it made of the phone.
int runOpenCommand(QTextStream &out, const Request &request);

// The settings file's path, the sort order it holds and the feature switches.
int runSettingsCommand(QTextStream &out, const Request &request);
