// Answers by key, each worked out once and then remembered. Safe to share
// between threads.
#pragma once

#include <QString>

#include <mutex>
#include <vector>

namespace KivSim {

class AnswerCache
{
public:
    // Past this many answers the cache starts over, so that a folder full of
    // made-up extensions cannot grow it without end.
    static constexpr qsizetype maxAnswers = 4096;

    // Only keys that keeps() accepts are remembered, besides the last other
    // key, which is often asked about again at once; keeps() is asked on a
    // miss only.
    explicit AnswerCache(bool (*keeps)(const QString &key)) : m_keeps(keeps) {}

    // The remembered answer for key, else work(), remembered when kept. work
    // runs unlocked: two threads may both work out a new key's answer.
    template<typename Work>
    QString answer(const QString &key, Work work)
    {
        const size_t hash = hashOf(key);
        {
            std::lock_guard<std::mutex> lock(m_mutex);
            if (const QString *found = find(key, hash))
                return *found;
        }
        const QString worked = work();
        std::lock_guard<std::mutex> lock(m_mutex);
        if (m_keeps(key))
            remember(key, hash, worked);
        else
            m_lastOther = {true, hash, key, worked};
        return worked;
    }

private:
    // Open addressing over a power-of-two table with each key's hash beside
    // it, not std::unordered_map: every listed file asks three or four times,
    // and a hit here is a hash of the short key, a mask and one comparison,
    // where the standard map adds a division and a node to follow, twice the
    // time of the rest.
    struct Slot
    {
        bool used = false;
        size_t hash = 0;
        QString key;
        QString answer;
    };

    static size_t hashOf(const QString &key);
    const QString *find(const QString &key, size_t hash) const;
    void remember(const QString &key, size_t hash, const QString &answer);
    void place(Slot &&slot);

    bool (*const m_keeps)(const QString &key);
    std::mutex m_mutex;
    std::vector<Slot> m_slots; // kept at most half full
    qsizetype m_count = 0;
    Slot m_lastOther; // the last key not kept
};

} // namespace KivSim
