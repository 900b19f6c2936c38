#include "section_index.h"

namespace KivSim {

SectionIndex::SectionIndex(const KeyFile::Section &section) : m_entries(section.entries)
{
    for (const KeyFile::Entry &entry : m_entries) {
        m_exact.insert(entry.key, entry.value);
        const QString folded = entry.key.toCaseFolded();
        if (!m_folded.contains(folded))
            m_folded.insert(folded, entry.value);
    }
}

QString SectionIndex::value(const QString &key) const
{
    const auto exact = m_exact.constFind(key);
    if (exact != m_exact.cend())
        return *exact;
    // Folding agrees with QString::compare(Qt::CaseInsensitive), which findIgnoringCase uses.
    return m_folded.value(key.toCaseFolded());
}

QStringList SectionIndex::keysWithValue(const QString &value) const
{
    QStringList keys;
    for (const KeyFile::Entry &entry : m_entries) {
        if (entry.value.compare(value, Qt::CaseInsensitive) == 0)
            keys.append(entry.key);
    }
    return keys;
}

} // namespace KivSim
