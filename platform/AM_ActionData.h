// Application manager: a named request with key/value pairs sent to another application.
#pragma once

#include "platform_export.h"

#include <QString>
#include <QVariant>
#include <utility>
#include <vector>

class KIVPLATFORM_EXPORT AM_ActionData
{
public:
    AM_ActionData();
    ~AM_ActionData();

    void setAction(const QString &action);
    void setValue(const QString &key, const QString &value);
    void setValue(const QString &key, int value);
    // Sends the request; true when the platform accepted it.
    bool invoke(bool waitForReply);

private:
    QString m_action;
    std::vector<std::pair<QString, QVariant>> m_values;
};
