// The journal of platform calls: when the environment variable KIVSIM_JOURNAL
// names a file, every journaled call appends one compact JSON object to it,
//   {"call":"UTIL_GetMMCSDInfo","device":"/dev/mmca"}
// one per line, written at once so that another process can follow it.
#pragma once

#include "kivsim_export.h"

#include <QByteArray>
#include <QJsonValue>

namespace KivSim::Journal {

// Whether a journal file is named; the variable is read once per process.
KIVSIM_EXPORT bool enabled();

// One journal line: the call's name, then its arguments in the order added.
// Build it only when enabled(), so that an unjournaled run does no work.
class KIVSIM_EXPORT Line
{
public:
    explicit Line(const char *call);

    // name is a plain identifier, written as it stands.
    Line &arg(const char *name, const QJsonValue &value);
    // Appends the line to the journal file with a single write.
    void write();

private:
    QByteArray m_text;
};

} // namespace KivSim::Journal
