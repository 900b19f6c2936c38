// Which files belong in a list: those of some extensions, those that may
// serve as ring tones, or all of them. Built once per list, asked per name.
#pragma once

#include "kivtambro_export.h"

#include <QRegularExpression>
#include <QString>
#include <QStringList>

// The kinds of filter. Only the numbers are fixed: a negative kind, or one
// above RingTones, passes every name.
enum TAMBRO_FILE_FILTER_EXP_TYPE : int {
    TAMBRO_FILTER_PATTERN = 0, // the single-pattern filter: by extension
    TAMBRO_FILTER_PATTERN_LIST = 1, // the pattern-list filter: by extension
    TAMBRO_FILTER_RING_TONES = 2, // what TAMBRO_Global::canAsRingTone accepts
};

class KIVTAMBRO_EXPORT TAMBRO_File_Filter
{
public:
    // A filter of that kind: the two extension kinds built this way pass
    // every name. The flags only shape the kept pattern.
    TAMBRO_File_Filter(TAMBRO_FILE_FILTER_EXP_TYPE kind, bool caseSensitive, bool wildcard);
    // By the extensions of the patterns, in order: the text after each one's
    // last "." (the whole pattern without one); "*" or "*.*" passes every
    // name and ends the list.
    TAMBRO_File_Filter(QStringList patterns, bool caseSensitive, bool wildcard);
    // By the extension of one pattern, which is never split: "*.mp3" and
    // "mp3" both keep "mp3"; exactly "*" or "*.*" passes every name.
    TAMBRO_File_Filter(const QString &pattern, bool caseSensitive, bool wildcard);

    // Back to an extension filter with an empty list (which passes every
    // name). A list shared with another filter stays with that filter.
    bool initial();

    // Whether the file passes. The name's extension (after its last ".",
    // none without one) is lower-cased, the list's items are not: "*.MP3"
    // passes nothing.
    bool match(const QString &name) const;
    // Exact equality, a missing extension equal to no item.
    bool extensionMatch(const QString &extension, const QString &item) const;

    // The single pattern with the constructor's case sensitivity, as a
    // regular expression (through QRegularExpression's wildcard conversion in
    // wildcard mode); for the application, never read by match. Empty for
    // the other constructors.
    QRegularExpression pattern;
    // The extensions to accept, without their dots, as the patterns wrote them.
    QStringList extensions;
    TAMBRO_FILE_FILTER_EXP_TYPE expType = TAMBRO_FILTER_PATTERN;
    // False: kinds 0 and 1 pass every name.
    bool checkExtensions = true;
};
