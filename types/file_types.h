// Predicates on file names that only the library uses: the icon table, and
// the contact and calendar checks of opening a file.
#pragma once

#include <QString>

namespace Tambro {

bool isCompleteDownloadExtension(const QString &name);
bool isPartialDownloadExtension(const QString &name);
bool isSavedImExtension(const QString &name);
bool isVoiceRecordExtension(const QString &name);
bool isVcardExtension(const QString &name);
bool isVcalendarExtension(const QString &name);
bool isJavaExtension(const QString &name);
bool isTextExtension(const QString &name);
// True when no application handles the extension, asked as it stands.
bool hasNoDefaultHandler(const QString &name);

} // namespace Tambro
