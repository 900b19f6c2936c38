#include "AM_ActionData.h"

#include "journal.h"

#include <QJsonArray>
#include <QVariant>

#include <utility>
#include <vector>

struct AM_ActionData::Data
{
    QString action;
    std::vector<std::pair<QString, QVariant>> values;
};

AM_ActionData::AM_ActionData() : d(std::make_unique<Data>()) {}

AM_ActionData::~AM_ActionData() = default;

void AM_ActionData::setAction(const QString &action)
{
    d->action = action;
}

void AM_ActionData::setValue(const QString &key, const QString &value)
{
    d->values.emplace_back(key, QVariant(value));
}

void AM_ActionData::setValue(const QString &key, int value)
{
    d->values.emplace_back(key, QVariant(value));
}

bool AM_ActionData::invoke(bool waitForReply)
{
    Q_UNUSED(waitForReply); // the simulated applications accept at once
    if (!KivSim::Journal::enabled())
        return true;
    QJsonArray values;
    for (const auto &[key, value] : d->values) {
        // An integer stays a JSON number, so that the journal tells the two setValue forms apart.
        values.append(QJsonArray{key, QJsonValue::fromVariant(value)});
    }
    KivSim::Journal::Line("AM_ActionData::invoke")
        .arg("action", d->action)
        .arg("values", values)
        .write();
    return true;
}
