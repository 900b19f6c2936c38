// The requests that a handler sends to other applications.
#pragma once

#include <QString>

namespace Tambro {

// The messaging application opens a saved message.
void openSavedMessage(const QString &filePath);
// The image viewer shows a picture: its preview, or the normal view in the
// sort order of the settings file.
void viewImage(const QString &filePath, bool preview);
// The media player plays a file whose extension the audio or video list
// holds; false, and nothing sent, when neither does.
bool playMedia(const QString &filePath);

} // namespace Tambro
