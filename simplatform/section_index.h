// A section of free keys ([mime], [handlers]) indexed for look-ups by key:
// the exact key first, else the first key in file order that equals it
// ignoring case, as KeyFile::Section::findIgnoringCase finds it, without
// scanning the section.
#pragma once

#include "keyfile.h"

#include <QHash>
#include <QString>
#include <QStringList>

namespace KivSim {

class SectionIndex
{
public:
    explicit SectionIndex(const KeyFile::Section &section = {});

    // Null when no key matches.
    QString value(const QString &key) const;
    // The keys whose value equals the given one ignoring case, in file order.
    QStringList keysWithValue(const QString &value) const;

private:
    QList<KeyFile::Entry> m_entries;
    QHash<QString, QString> m_exact;
    QHash<QString, QString> m_folded; // case-folded key -> value of its first key
};

} // namespace KivSim
