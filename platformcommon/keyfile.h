// Parser of ini-style key files: "[section]" headers and "key = value" lines.
//
// Used for the simulated phone's device file, for configuration files read
// through ZConfig and by the kivsim launcher. The syntax is deliberately small:
//
//   - any bytes are accepted; a UTF-8 byte order mark starting the input (or
//     any line, as where files were joined) is skipped;
//   - a line ends in LF, CR LF or the end of the input; one CR just before
//     the line's end is dropped, any other CR is part of the line (a CR alone
//     does not end a line);
//   - a line that is not valid UTF-8 is read as Latin-1 (older tools wrote
//     such files);
//   - blank lines and lines whose first non-blank character is '#' or ';' are
//     comments (there are no comments after a value);
//   - "[name]" starts a section. The name is everything between '[' and the
//     first ']', exactly as written: it may hold blanks, '/', ':' or '[', and
//     "[/music ]" names "/music ". Blanks may precede '[' and follow ']'; any
//     other text after ']', a missing ']', an empty name or a NUL byte makes
//     the header malformed, and the entries up to the next header are ignored;
//   - a repeated section silently continues the first one, in its place;
//   - "key = value": blanks around the key and after '=' are dropped, but the
//     value keeps trailing blanks (a folder name may end in one); no quoting;
//     keys are case-sensitive;
//   - a repeated key replaces the earlier value, keeping the key's first place,
//     with a warning;
//   - an entry line holding a NUL byte is ignored, with a warning.
//
// Anything else is a malformed line: it is skipped and reported in warnings()
// as "origin:line: message". Nothing in the input makes the parser fail, and
// both parsing and look-ups stay linear however many sections or keys a file
// holds.
#pragma once

#include <QByteArray>
#include <QHash>
#include <QList>
#include <QString>
#include <QStringList>

#include <optional>
#include <utility>

// Messages about a file, "origin:line: message": at most maxWarnings of them,
// then one line counting the rest, so that a binary file does not flood the log.
class WarningLog
{
public:
    static constexpr int maxWarnings = 100;

    explicit WarningLog(const QString &origin) : m_origin(origin) {}
    void add(int line, const QString &message);
    // The messages, with the count of those left out at the end.
    QStringList lines() const;

private:
    QString m_origin;
    QStringList m_lines;
    int m_problems = 0;
    int m_firstUnlistedLine = 0;
};

class KeyFile
{
public:
    struct Entry
    {
        QString key;
        QString value;
        int line = 0; // 1-based line of the value in force
    };

    struct Section
    {
        QString name;
        int line = 0; // 1-based line of the first header
        QList<Entry> entries; // in order of first appearance

        const Entry *find(const QString &key) const;
        // The exact key when present, else the first key equal to it ignoring case.
        const Entry *findIgnoringCase(const QString &key) const;
        QStringList keys() const;
    };

    static constexpr int maxWarnings = WarningLog::maxWarnings;
    // Configuration files are small; a larger one is not read at all.
    static constexpr qint64 maxFileBytes = 32 << 20;

    // origin names the input in warnings, normally the file's path.
    static KeyFile parse(const QByteArray &data, const QString &origin);
    // A missing file gives an empty key file without warnings. One that is
    // unreadable, no regular file (a FIFO, a device) or larger than
    // maxFileBytes gives an empty key file with a warning.
    static KeyFile load(const QString &path);

    // A piece of the input short enough for a message, and the same in quotes.
    static QString shortened(const QString &text);
    static QString quoted(const QString &text);

    // A decimal number (optionally negative) or a "0x" hexadecimal one, blanks
    // around it allowed; nothing for anything else, including overflow.
    static std::optional<qint64> toNumber(const QString &text);

    const QList<Section> &sections() const { return m_sections; }
    const Section *section(const QString &name) const;
    QStringList keys(const QString &section) const;
    // Exact section and key; fallback when either is missing.
    QString value(const QString &section, const QString &key,
                  const QString &fallback = QString()) const;
    // Exact section; the key as in Section::findIgnoringCase.
    QString valueIgnoringCase(const QString &section, const QString &key,
                              const QString &fallback = QString()) const;

    const QStringList &warnings() const { return m_warnings; }

private:
    class Parser;

    const Entry *entry(const QString &section, const QString &key) const;

    QList<Section> m_sections;
    // Kept by the parser so that look-ups do not scan the file's sections.
    QHash<QString, int> m_sectionIndex; // name -> place in m_sections
    // One index for all sections: a hash per section would cost far more than
    // a tiny section's own entries.
    QHash<std::pair<int, QString>, int> m_entryIndex; // (section, key) -> place in entries
    QStringList m_warnings;
};
