#include "action_values.h"

#include "journal.h"

#include <QJsonArray>

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
