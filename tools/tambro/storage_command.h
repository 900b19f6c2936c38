#pragma once

#include <QTextStream>

// Prints the partition table, as aligned text or as JSON.
int runStorageCommand(QTextStream &out, bool json);
