#include "action_values.h"

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
