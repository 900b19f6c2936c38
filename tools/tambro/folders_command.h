#pragma once

#include "request.h"

#include <QTextStream>

// Prints the fixed folder structure that the folder structure file describes:
// key words with their folders, the default folder and the preloaded folders.
int runFoldersCommand(QTextStream &out, const Request &request);
