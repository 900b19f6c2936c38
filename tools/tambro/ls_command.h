#pragma once

#include "request.h"

#include <QTextStream>

// Why the file filter options do not go together; empty when they do.
QString lsMisuse(const Request &request);

// Lists a folder as the file manager does, or draws it as the phone shows it.
int runLsCommand(QTextStream &out, const Request &request);
