/// \file
/// Which files belong in a list: those of some extensions, those that may
/// serve as ring tones, or all of them. Built once per list, asked per name.
#pragma once

#include "kivtambro_export.h"

#include <QRegularExpression>
#include <QString>
#include <QStringList>

/// The kinds of filter. Only the numbers are fixed: a negative kind, or one
/// above TAMBRO_FILTER_RING_TONES, passes every name.
enum TAMBRO_FILE_FILTER_EXP_TYPE : int {
    TAMBRO_FILTER_PATTERN = 0, ///< the single-pattern filter: by extension
    TAMBRO_FILTER_PATTERN_LIST = 1, ///< the pattern-list filter: by extension, as the single-pattern one
    TAMBRO_FILTER_RING_TONES = 2, ///< what TAMBRO_Global::canAsRingTone accepts; the extensions are not looked at
};

/// A file filter: made once for a list, then asked about every name with
/// match(). Its public fields are the phone's, left for the application to
/// read and change.
class KIVTAMBRO_EXPORT TAMBRO_File_Filter
{
public:
    /// A filter of that kind: the two extension kinds built this way pass
    /// every name. The flags only shape the kept pattern.
    /// The kept pattern is empty, and checkExtensions false, so extensions
    /// the application adds are not checked until initial() is called.
    TAMBRO_File_Filter(TAMBRO_FILE_FILTER_EXP_TYPE kind, bool caseSensitive, bool wildcard);
    /// By the extensions of the patterns, in order: the text after each one's
    /// last "." (the whole pattern without one); "*" or "*.*" passes every
    /// name and ends the list.
    /// The patterns after it are not looked at. An empty list passes every
    /// name. The kept pattern is empty.
    TAMBRO_File_Filter(QStringList patterns, bool caseSensitive, bool wildcard);
    /// By the extension of one pattern, which is never split: "*.mp3" and
    /// "mp3" both keep "mp3"; exactly "*" or "*.*" passes every name.
    /// "*.mp3 *.wav" keeps "wav" alone, the text after its last ".".
    TAMBRO_File_Filter(const QString &pattern, bool caseSensitive, bool wildcard);

    /// Back to an extension filter with an empty list (which passes every
    /// name). A list shared with another filter stays with that filter.
    /// The extensions are checked again from then on; the kept pattern
    /// stays. Always true.
    bool initial();

    /// Whether the file passes. The name's extension (after its last ".",
    /// none without one) is lower-cased, the list's items are not: "*.MP3"
    /// passes nothing.
    /// A dot in a folder name counts; a name without any "." passes no item,
    /// not even an empty one, while a trailing "." gives the empty extension
    /// that the pattern "*." keeps. A ring-tone filter answers as
    /// TAMBRO_Global::canAsRingTone and makes the library's context first
    /// (TAMBRO_Global::instance(), which builds the partition table on first
    /// use): one registry question for a preloaded name. The other kinds read
    /// nothing and ask nothing of the platform.
    bool match(const QString &name) const;
    /// Exact equality, a missing extension equal to no item.
    /// Case counts; a null extension (none) equals only a null item, and an
    /// empty one only an empty item.
    bool extensionMatch(const QString &extension, const QString &item) const;

    /// The single pattern with the constructor's case sensitivity, as a
    /// regular expression (through QRegularExpression's wildcard conversion in
    /// wildcard mode); for the application, never read by match. Empty for
    /// the other constructors.
    QRegularExpression pattern;
    /// The extensions to accept, without their dots, as the patterns wrote them.
    /// An empty list passes every name. The application may change it.
    QStringList extensions;
    /// The filter's kind, which match() goes by; set by the constructors and
    /// by initial().
    TAMBRO_FILE_FILTER_EXP_TYPE expType = TAMBRO_FILTER_PATTERN;
    /// False: kinds 0 and 1 pass every name.
    /// Set by "*" and "*.*" and by the kind constructor; initial() sets it.
    bool checkExtensions = true;
};
