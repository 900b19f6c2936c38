// What the user asked of tambro, once the command line has been checked.
#pragma once

#include <QString>
#include <QStringList>

struct Request
{
    QStringList arguments; // after the command word
    bool json = false;
    QString png; // --png FILE, where the command draws
};
