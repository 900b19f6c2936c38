#include "AM_ActionData.h"

#include "journal.h"

#include <QJsonArray>

AM_ActionData::AM_ActionData() = default;

AM_ActionData::~AM_ActionData() = default;

void AM_ActionData::setAction(const QString &action)
{
    m_action = action;
}

void AM_ActionData::setValue(const QString &key, const QString &value)
{
    m_values.emplace_back(key, QVariant(value));
}

void AM_ActionData::setValue(const QString &key, int value)
{
    m_values.emplace_back(key, QVariant(value));
}

bool AM_ActionData::invoke(bool waitForReply)
{
    Q_UNUSED(waitForReply); // the simulated applications accept at once
    if (!KivSim::Journal::enabled())
        return true;
    QJsonArray values;
    for (const auto &[key, value] : m_values) {
        // An integer stays a JSON number, so that the journal tells the two setValue forms apart.
        values.append(QJsonArray{key, QJsonValue::fromVariant(value)});
    }
    KivSim::Journal::Line("AM_ActionData::invoke")
        .arg("action", m_action)
        .arg("values", values)
        .write();
    return true;
}
