// The simulated phone's warnings on standard error. What they quote comes from
// a device folder's files, so it is shown escaped: a key or a file name
// cannot retitle or clear the terminal, nor pass for another name.
#pragma once

#include "printable/printable_text.h"

#include <QDebug>

inline void platformWarning(const QString &message)
{
    qWarning().noquote() << QStringLiteral("kivsim: warning: ") + printableText(message);
}
