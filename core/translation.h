// Built-in texts: translated with their resource id as the source text and
// the English text as the comment.
#pragma once

#include <QString>

namespace Tambro {

// The catalogue's text for the id, or the English text when no catalogue has one.
QString translate(const char *context, const char *resourceId, const char *english);

} // namespace Tambro
