#pragma once

#include "request.h"

#include <QTextStream>

// For each path: its size, its file and folder counts (in its whole tree and
// directly), its storage's space and whether it is read-only; then the
// selection title for all the paths together.
int runDuCommand(QTextStream &out, const Request &request);
