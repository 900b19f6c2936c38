// Quoting for the POSIX shell, used for the fill script and for showing commands.
#pragma once

#include <QString>
#include <QStringList>

// The text as one shell word: unchanged when it is plainly safe, else in single quotes.
QString shellQuote(const QString &text);
QString shellQuote(const QStringList &words);
