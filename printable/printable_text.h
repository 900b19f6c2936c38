// Text for a terminal, from whatever a name or a file holds. Every escape
// starts with a backslash and a backslash itself is doubled, so that two
// different inputs never print alike and no input can pass for an escape.
#pragma once

#include <QByteArray>
#include <QString>

// The text as a terminal may show it without being driven by it: "\\" for a
// backslash, "\n", "\r", "\t" and "\x1b" for C0 controls, DEL and C1
// controls, "\u202e" for bidirectional controls, other invisible format
// characters, line and paragraph separators, lone surrogates and
// noncharacters ("\U000e0001" beyond the 16-bit range). Everything else is
// kept.
QString printableText(const QString &text);

// Bytes that should be UTF-8 (a name from disk, a line of a file): what
// decodes is shown as printableText() shows it, undecodable bytes as \xff one
// by one, overlong forms and encoded surrogates included.
QString printableBytes(const QByteArray &bytes);
