#pragma once

#include "request.h"

#include <QTextStream>

// Prints each name's answers to the file type predicates and its icon names.
int runTypeCommand(QTextStream &out, const Request &request);
