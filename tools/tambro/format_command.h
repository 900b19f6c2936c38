#pragma once

#include "request.h"

#include <QTextStream>

// Why format's values do not parse; empty when they all do.
QString formatMisuse(const Request &request);

// Writes the given sizes, dates and durations as the library writes them.
int runFormatCommand(QTextStream &out, const Request &request);
