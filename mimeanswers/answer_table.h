// Answers by key, each worked out once and then remembered. Safe to share
// between threads.
#pragma once

#include <QHash>
#include <QString>

#include <mutex>

namespace MimeAnswers {

class AnswerTable
{
public:
    // Past this many answers the table starts over, so that a folder full of
    // made-up extensions cannot grow it without end.
    static constexpr qsizetype maxAnswers = 4096;

    // Only keys that keeps() accepts are remembered; it is asked on a miss only.
    explicit AnswerTable(bool (*keeps)(const QString &key)) : m_keeps(keeps) {}

    // The remembered answer for key, else work(), remembered when kept. work
    // runs unlocked: two threads may both work out a new key's answer.
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
        if (m_keeps(key))
            remember(key, worked);
        return worked;
    }

private:
    void remember(const QString &key, const QString &answer);

    bool (*const m_keeps)(const QString &key);
    std::mutex m_mutex;
    QHash<QString, QString> m_answers;
};

} // namespace MimeAnswers
