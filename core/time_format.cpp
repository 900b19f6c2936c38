// Dates and durations for the details views.
#include "TAMBRO_Global.h"

#include <QDateTime>

QString TAMBRO_Global::convertDateTime(QDateTime dateTime)
{
    const QDate date = dateTime.date();
    const QTime time = dateTime.time();
    return QString::asprintf("%4d-%02d-%02d %02d:%02d:%02d", date.year(), date.month(), date.day(),
                             time.hour(), time.minute(), time.second());
}

QString TAMBRO_Global::convertTime(int milliseconds)
{
    // Unsigned 32-bit on purpose: a negative duration wraps, as media players
    // hand over their positions unchecked.
    const quint32 seconds = (quint32(milliseconds) + 500u) / 1000u;
    const quint32 hours = seconds / 3600u;
    const quint32 rest = seconds - hours * 3600u;
    const quint32 minutes = rest / 60u;
    const quint32 secs = rest - minutes * 60u;
    if (hours == 0)
        return QString::asprintf("%02u:%02u", minutes, secs);
    return QString::asprintf("%02u:%02u:%02u", hours, minutes, secs);
}
