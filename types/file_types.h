// Predicates on file names that only the library uses: the icon table, and
// the contact and calendar checks of opening a file.
#pragma once

#include <QString>
#include <QStringView>

namespace Tambro {

// A name with both of its extensions taken once, for the icon table, which
// asks up to fourteen predicates about one name. Views into the name, which
// must outlive it.
struct NameExtensions
{
    NameExtensions(const QString &name); // implicit: every predicate takes a plain name too

    // The last-dot extension as a string for the registry, made at the first
    // call; valid until another name of the thread is asked for its text.
    const QString &lastDotText() const;

    const QString &name;
    QStringView lastDot;  // lastDotExtension()
    QStringView fileName; // fileNameExtension()

private:
    mutable const QString *m_lastDotText = nullptr;
};

bool isCompleteDownloadExtension(const NameExtensions &name);
bool isPartialDownloadExtension(const NameExtensions &name);
bool isSavedImExtension(const NameExtensions &name);
bool isVoiceRecordExtension(const NameExtensions &name);
bool isVcardExtension(const NameExtensions &name);
bool isVcalendarExtension(const NameExtensions &name);
bool isJavaExtension(const NameExtensions &name);
bool isTextExtension(const NameExtensions &name);
bool isGlintExtension(const NameExtensions &name);
bool isBookmarkExtension(const NameExtensions &name);
// Whether the registry's type of the extension is of the kind.
bool hasAudioType(const NameExtensions &name);
bool hasVideoType(const NameExtensions &name);
bool hasImageType(const NameExtensions &name);
// True when no application handles the extension, asked as it stands.
bool hasNoDefaultHandler(const NameExtensions &name);

} // namespace Tambro
