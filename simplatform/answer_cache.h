// Answers by key, each worked out once and then remembered. Safe to share
// between threads.
#pragma once

#include <QHash>
#include <QString>

#include <mutex>

namespace KivSim {

class AnswerCache
{
public:
    // Past this many answers the cache starts over, so that a folder full of
    // made-up extensions cannot grow it without end.
    static constexpr qsizetype maxAnswers = 4096;

    // The remembered answer for key, else work(), remembered. work runs
    // unlocked: two threads may both work out a new key's answer.
    template<typename Work>
    QString answer(const QString &key, Work work)
    {
        {
            std::lock_guard<std::mutex> lock(m_mutex);
            const auto found = m_answers.constFind(key);
            if (found != m_answers.cend())
                return *found;
        }
        const QString worked = work();
        std::lock_guard<std::mutex> lock(m_mutex);
        if (m_answers.size() >= maxAnswers)
            m_answers.clear();
        m_answers.insert(key, worked);
        return worked;
    }

private:
    std::mutex m_mutex;
    QHash<QString, QString> m_answers;
};

} // namespace KivSim
