#include "answer_table.h"

namespace MimeAnswers {

void AnswerTable::remember(const QString &key, const QString &answer)
{
    std::lock_guard<std::mutex> lock(m_mutex);
    if (m_answers.size() >= maxAnswers)
        m_answers.clear();
    m_answers.insert(key, answer);
}

} // namespace MimeAnswers
