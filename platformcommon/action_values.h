// A request to an application as the library builds it: its action and its
// values in the order set. Every platform keeps them alike; each answers the
// request (AM_ActionData::invoke) its own way.
#pragma once

#include "AM_ActionData.h"

#include <QString>
#include <QVariant>

#include <utility>
#include <vector>

struct AM_ActionData::Data
{
    QString action;
    std::vector<std::pair<QString, QVariant>> values;

    // The first value set under the key, as text; empty when none was.
    QString value(const QString &key) const
    {
        for (const auto &[name, value] : values) {
            if (name == key)
                return value.toString();
        }
        return QString();
    }
};
