// Parser of ini-style key files: "[section]" headers and "key = value" lines.
//
// Used for the simulated phone's device file, for configuration files read
// through ZConfig and by the kivsim launcher. The syntax is deliberately small:
//
//   - a UTF-8 byte order mark at the start is skipped; lines end in LF or CR-LF;
//   - blank lines and lines whose first non-blank character is '#' or ';' are
//     comments (there are no comments after a value);
//   - "[name]" starts a section; a repeated section continues the first one;
//   - "key = value": blanks around the key and after '=' are dropped, but the
//     value keeps trailing blanks (a folder name may end in one); no quoting;
//   - a repeated key replaces the earlier value, keeping the key's first place.
//
// Anything else is a malformed line: it is skipped and reported in warnings()
// as "origin:line: message". Nothing in the input makes the parser fail.
#pragma once

#include <QByteArray>
#include <QList>
#include <QString>
#include <QStringList>

#include <optional>

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

    // origin names the input in warnings, normally the file's path.
    static KeyFile parse(const QByteArray &data, const QString &origin);
    // A missing file gives an empty key file without warnings; an unreadable one
    // gives an empty key file with a warning.
    static KeyFile load(const QString &path);

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

    QList<Section> m_sections;
    QStringList m_warnings;
};
