#pragma once

#include "request.h"

#include <QTextStream>

// Prints the partition table, as aligned text or as JSON.
int runStorageCommand(QTextStream &out, const Request &request);
