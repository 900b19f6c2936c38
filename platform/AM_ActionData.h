// Application manager: a named request with key/value pairs sent to another application.
#pragma once

#include "platform_export.h"

#include <QString>

#include <memory>

class KIVPLATFORM_EXPORT AM_ActionData
{
public:
    AM_ActionData();
    ~AM_ActionData();
    AM_ActionData(const AM_ActionData &) = delete;
    AM_ActionData &operator=(const AM_ActionData &) = delete;

    void setAction(const QString &action);
    // Values are sent in the order they were set; a number stays a number.
    void setValue(const QString &key, const QString &value);
    void setValue(const QString &key, int value);
    // Sends the request; true when the platform accepted it.
    bool invoke(bool waitForReply);

private:
    struct Data;
    std::unique_ptr<Data> d;
};
