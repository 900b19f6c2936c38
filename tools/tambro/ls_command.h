#pragma once

#include "request.h"

#include <QTextStream>

// Lists a folder as the file manager does, or draws it as the phone shows it.
int runLsCommand(QTextStream &out, const Request &request);
