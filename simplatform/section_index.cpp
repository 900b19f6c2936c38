#include "section_index.h"

namespace KivSim {

namespace {

// What Qt folds the character to; ASCII here, as Qt's tables cost a call.
char16_t folded(QChar c)
{
    if (c.unicode() >= 0x80)
        return c.toCaseFolded().unicode();
    return c >= u'A' && c <= u'Z' ? c.unicode() + (u'a' - u'A') : c.unicode();
}

} // namespace

size_t SectionIndex::FoldedHash::operator()(const QString &key) const noexcept
{
    // Qt folds a surrogate pair as one character, changing its second half
    // only: surrogates are left out of the hash, and no other character
    // folds into or out of a pair.
    size_t hash = Tambro::TextHash::start;
    for (QChar c : key) {
        if (c.isSurrogate())
            continue;
        hash = Tambro::TextHash::mix(hash, folded(c));
    }
    return hash;
}

bool SectionIndex::FoldedEqual::operator()(const QString &a, const QString &b) const noexcept
{
    return a.compare(b, Qt::CaseInsensitive) == 0;
}

SectionIndex::SectionIndex(const KeyFile::Section &section) : m_entries(section.entries)
{
    for (const KeyFile::Entry &entry : m_entries) {
        m_exact.emplace(entry.key, entry.value); // keys are unique in a section
        m_folded.emplace(entry.key, entry.value); // the first in file order stays
    }
}

QString SectionIndex::value(const QString &key) const
{
    const auto exact = m_exact.find(key);
    if (exact != m_exact.end())
        return exact->second;
    const auto folded = m_folded.find(key);
    return folded != m_folded.end() ? folded->second : QString();
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
