#include "answer_cache.h"

#include "core/text_hash.h"

#include <algorithm>
#include <unordered_set>

namespace KivSim {

namespace {

constexpr size_t firstSize = 16;

bool sameText(const QString &a, const QString &b)
{
    return a.size() == b.size() && std::equal(a.cbegin(), a.cend(), b.cbegin());
}

// The answer's text kept for the life of the process, handed out as raw data:
// copying such a text touches no reference count, which costs more than the
// rest of a hit. Answers are MIME types and application ids, a few hundred
// different texts at most.
QString interned(const QString &answer)
{
    if (answer.isNull())
        return answer;
    static std::mutex mutex;
    static auto *const texts = new std::unordered_set<QString, Tambro::TextHash>; // never freed
    std::lock_guard<std::mutex> lock(mutex);
    const QString &kept = *texts->insert(answer).first;
    return QString::fromRawData(kept.constData(), kept.size());
}

} // namespace

size_t AnswerCache::hashOf(const QString &key)
{
    return Tambro::TextHash()(key);
}

const QString *AnswerCache::find(const QString &key, size_t hash) const
{
    const size_t mask = m_slots.size() - 1;
    for (size_t at = hash & mask; !m_slots.empty(); at = (at + 1) & mask) {
        const Slot &slot = m_slots[at];
        if (!slot.used)
            break;
        if (slot.hash == hash && sameText(slot.key, key))
            return &slot.answer;
    }
    if (m_lastOther.used && m_lastOther.hash == hash && sameText(m_lastOther.key, key))
        return &m_lastOther.answer;
    return nullptr;
}

void AnswerCache::remember(const QString &key, size_t hash, const QString &answer)
{
    if (find(key, hash))
        return; // another thread was first
    if (m_count >= maxAnswers) {
        m_slots.clear();
        m_count = 0;
    }
    if (size_t(m_count + 1) * 2 > m_slots.size()) {
        std::vector<Slot> old(std::max(m_slots.size() * 2, firstSize));
        old.swap(m_slots);
        for (Slot &slot : old) {
            if (slot.used)
                place(std::move(slot));
        }
    }
    place({true, hash, key, interned(answer)});
    ++m_count;
}

void AnswerCache::place(Slot &&slot)
{
    const size_t mask = m_slots.size() - 1;
    size_t at = slot.hash & mask;
    while (m_slots[at].used)
        at = (at + 1) & mask;
    m_slots[at] = std::move(slot);
}

} // namespace KivSim
