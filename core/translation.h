// Built-in texts: translated with their resource id as the source text and
// the English text as the comment.
#pragma once

#include <QString>

namespace Tambro {

// The catalogue's text for the id, or the English text when no catalogue has one.
QString translate(const char *context, const char *resourceId, const char *english);

// Texts of the phone's configuration files, Latin-1 like the files: the
// catalogue's text for the text and comment in the general context, else the
// text itself, limited to Latin-1.
QString translateLatin1(const QString &text, const QString &comment);

} // namespace Tambro
