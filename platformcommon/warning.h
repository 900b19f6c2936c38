// A platform's warnings on standard error, after the program's name as other
// programs' are. What they quote comes from device folders, desktop entries
// and file names, so it is shown escaped: a key or a file name cannot retitle
// or clear the terminal, nor pass for another name.
#pragma once

#include "printable/printable_text.h"

#include <QDebug>

#include <cerrno>

inline void platformWarning(const QString &message)
{
    qWarning().noquote() << QString::fromLocal8Bit(program_invocation_short_name) + QStringLiteral(": warning: ")
            + printableText(message);
}
