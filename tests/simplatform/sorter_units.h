// Units as the file manager hands them to the sorter: each code byte-swapped,
// so that they lie in memory as big-endian UCS-2, and a terminating 0.
#pragma once

#include <QString>

#include <vector>

inline std::vector<unsigned short> sorterUnits(const QString &text)
{
    std::vector<unsigned short> units;
    for (QChar c : text)
        units.push_back(ushort((c.unicode() & 0xFF) << 8 | c.unicode() >> 8));
    units.push_back(0);
    return units;
}
