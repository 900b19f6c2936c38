#pragma once

#include "request.h"

#include <QTextStream>

// Prints what the library tells of each path: its location line, parent,
// short name, depth, partition, and as a fixed folder its subfolders and
// invisible links.
int runPathCommand(QTextStream &out, const Request &request);
