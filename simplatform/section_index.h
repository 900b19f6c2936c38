// A section of free keys ([mime], [handlers]) indexed for look-ups by key:
// the exact key first, else the first key in file order that equals it
// ignoring case, as KeyFile::Section::findIgnoringCase finds it, without
// scanning the section.
#pragma once

#include "keyfile.h"

#include "core/text_hash.h"

#include <QString>
#include <QStringList>

#include <unordered_map>

namespace KivSim {

class SectionIndex
{
public:
    explicit SectionIndex(const KeyFile::Section &section = {});

    // Null when no key matches.
    QString value(const QString &key) const;
    // The keys whose value equals the given one ignoring case, in file order.
    QStringList keysWithValue(const QString &value) const;

    // Keys equal ignoring case hash alike, and compare equal, as
    // QString::compare(Qt::CaseInsensitive) says: no folded copy to look up.
    struct FoldedHash
    {
        size_t operator()(const QString &key) const noexcept;
    };
    struct FoldedEqual
    {
        bool operator()(const QString &a, const QString &b) const noexcept;
    };

private:
    QList<KeyFile::Entry> m_entries;
    std::unordered_map<QString, QString, Tambro::TextHash> m_exact;
    std::unordered_map<QString, QString, FoldedHash, FoldedEqual> m_folded; // key -> value, first in file order
};

} // namespace KivSim
